#include "document/disk_work_files.h"
#include "document/failure.h"
#include "document/memory_work_files.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <sys/stat.h>

namespace quillmere {
namespace {

namespace fs = std::filesystem;

template <class Store> class WorkFilesTest : public testing::Test {
};
using Stores = testing::Types<MemoryWorkFiles, DiskWorkFiles>;
TYPED_TEST_SUITE(WorkFilesTest, Stores);

TYPED_TEST(WorkFilesTest, NamesAreTheLowestThatAreFree)
{
    TypeParam files;
    const auto path = [&](const std::string& name) { return files.directory() + name; };
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml0.htm");
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml1.htm");
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml2.htm");
    EXPECT_EQ(files.unusedName("Wml", ".wml"), "Wml0.wml"); // another suffix, another count
    EXPECT_EQ(files.unusedName("Wml", ".wml"), "Wml0.wml"); // was not made
    files.write(path("Wml0.wml"), "x");
    EXPECT_EQ(files.unusedName("Wml", ".wml"), "Wml1.wml");
    files.remove(path("Wml1.htm"));
    EXPECT_EQ(files.unusedName("Wml", ".htm"), "Wml1.htm");
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml1.htm");
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml3.htm");
}

TYPED_TEST(WorkFilesTest, KeepWhatIsWritten)
{
    TypeParam files;
    const auto path = files.directory() + files.createFile("Wml", ".htm");
    EXPECT_TRUE(files.exists(path));
    EXPECT_EQ(files.read(path), "");
    const std::string bytes("a\0\r\n\xFF", 5);
    files.write(path, bytes);
    EXPECT_EQ(files.read(path), bytes);
    files.write(path, "kurz");
    EXPECT_EQ(files.read(path), "kurz");
    files.remove(path);
    files.remove(path);
    EXPECT_FALSE(files.exists(path));
    EXPECT_THROW(static_cast<void>(files.read(path)), FileFailure);
}

TEST(MemoryWorkFiles, NumbersEndAt32767)
{
    MemoryWorkFiles files;
    for (int i = 0; i <= 32767; ++i)
        ASSERT_EQ(files.createFile("Bmp", ".bmp"), "Bmp" + std::to_string(i) + ".bmp");
    EXPECT_THROW(static_cast<void>(files.createFile("Bmp", ".bmp")), Overflow);
    EXPECT_THROW(static_cast<void>(files.unusedName("Bmp", ".bmp")), Overflow);
    files.remove("Bmp777.bmp");
    EXPECT_EQ(files.createFile("Bmp", ".bmp"), "Bmp777.bmp");
}

TEST(DiskWorkFiles, AreForThisRunAlone)
{
    const test::ScratchFolder folder;
    std::optional<DiskWorkFiles> files(folder.path());
    const DiskWorkFiles others(folder.path());
    const auto directory = files->directory();
    EXPECT_NE(directory, others.directory());
    struct stat status { };
    ASSERT_EQ(::stat(directory.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0700U);
    ASSERT_EQ(::stat((directory + files->createFile("Wml", ".htm")).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
    files.reset();
    EXPECT_FALSE(fs::exists(directory));
    EXPECT_TRUE(fs::exists(others.directory()));
    EXPECT_THROW(DiskWorkFiles(folder.path() + "fehlt/"), FileFailure);
}

TEST(DiskWorkFiles, NeverGoThroughALink)
{
    const test::ScratchFolder folder;
    folder.put("fremd", "fremd");
    DiskWorkFiles files(folder.path());
    const auto directory = files.directory();
    fs::create_symlink(folder.path() + "fremd", directory + "Wml0.htm");
    fs::create_symlink(folder.path() + "fehlt", directory + "Wml1.htm");
    EXPECT_EQ(files.unusedName("Wml", ".htm"), "Wml2.htm");
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml2.htm");
    files.write(directory + "Wml0.htm", "neu"); // takes the link's place
    EXPECT_EQ(files.read(directory + "Wml0.htm"), "neu");
    EXPECT_EQ(folder.get("fremd"), "fremd");
    EXPECT_FALSE(folder.has("fehlt"));
}

} // namespace
} // namespace quillmere
