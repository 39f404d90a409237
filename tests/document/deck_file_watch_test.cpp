#include "document/platform/deck_file_watch.h"

#include "document/platform/files.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace quillmere {
namespace {

namespace fs = std::filesystem;

TEST(DeckFileWatch, TellsWhatOtherProgramsDidToTheFile)
{
    const test::ScratchFolder folder;
    const auto path = folder.put("index.wml", "<wml>eins</wml>");
    const auto later
        = [&] { fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(2)); };
    DeckFileWatch watch;
    EXPECT_FALSE(watch.hasChangedOutside()); // nothing is remembered
    watch.remember(path);
    EXPECT_FALSE(watch.hasChangedOutside());
    later();
    EXPECT_FALSE(watch.hasChangedOutside()) << "only touched";

    const auto time = fs::last_write_time(path);
    (void)folder.put("index.wml", "<wml>zwei</wml>"); // in place and of the same size
    later();
    EXPECT_EQ(watch.change(), DeckFileChange::Altered);
    watch.remember(path);
    replaceFile(path, "<wml>drei</wml>"); // another file of the same size and time
    fs::last_write_time(path, time);
    EXPECT_EQ(watch.change(), DeckFileChange::Altered);

    watch.remember(path);
    fs::remove(path);
    EXPECT_EQ(watch.change(), DeckFileChange::Removed);
    watch.remember(path);
    EXPECT_FALSE(watch.hasChangedOutside()) << "a new deck has no file yet";
    watch.forget();
    EXPECT_FALSE(watch.hasChangedOutside());
}

} // namespace
} // namespace quillmere
