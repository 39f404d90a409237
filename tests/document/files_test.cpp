#include "document/files.h"

#include "document/failure.h"
#include "document/windows1252.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace quillmere {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;

/// What goes wrong in `action`, as UTF-8.
template <class Action> std::string failureOf(const Action& action)
{
    try {
        action();
    } catch (const FileFailure& failure) {
        return toUtf8(failure.description());
    }
    return "nothing";
}

mode_t modeOf(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

std::size_t namesIn(const std::string& directory)
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(directory), fs::directory_iterator()));
}

/// No file grows beyond `bytes` as long as this lives, as on a disk that is full.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes)
        : handler_(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit small{bytes, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    SmallDisk(SmallDisk&&) = delete;
    SmallDisk& operator=(SmallDisk&&) = delete;
    ~SmallDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        static_cast<void>(std::signal(SIGXFSZ, handler_));
    }

private:
    rlimit old_{};
    void (*handler_)(int);
};

TEST(Files, ReadWhatWasWrittenByteForByte)
{
    const ScratchFolder folder;
    const auto path = folder.path() + "Stücke.wml";
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 100000U}) {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<char>(i * 7);
        replaceFile(path, bytes);
        EXPECT_EQ(readFile(path), bytes) << size;
    }
    EXPECT_EQ(namesIn(folder.path()), 1U);
}

TEST(Files, ReadingStopsAtTheLimit)
{
    const ScratchFolder folder;
    folder.put("a", "12345");
    EXPECT_EQ(readFile(folder.path() + "a", 5), "12345");
    EXPECT_THROW(static_cast<void>(readFile(folder.path() + "a", 4)), Overflow);
    EXPECT_THROW(static_cast<void>(readFile("/dev/zero", 1000)), Overflow);
}

TEST(Files, APipeIsReadToItsEnd)
{
    const ScratchFolder folder;
    const auto path = folder.path() + "pipe";
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    std::thread writer([&path] {
        std::ofstream pipe(path);
        pipe << "first" << std::flush;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        pipe << ", second";
    });
    EXPECT_EQ(readFile(path), "first, second");
    writer.join();
}

TEST(Files, OneFailureAmongManyReplacementsLeavesTheOthers)
{
    const ScratchFolder folder;
    fs::create_directory(folder.path() + "sub");
    folder.put("a", "old");
    {
        FileReplacements files;
        files.replace(folder.path() + "a", "new");
        EXPECT_THROW(files.replace(folder.path() + "sub", "new"), FileFailure);
        EXPECT_THROW(files.replace(folder.path() + "missing/a", "new"), FileFailure);
        files.replace(folder.path() + "sub/b", "new");
        EXPECT_EQ(folder.get("a"), "new") << "before the end already";
    }
    EXPECT_EQ(folder.get("sub/b"), "new");
    EXPECT_EQ(namesIn(folder.path()), 2U);
    EXPECT_EQ(namesIn(folder.path() + "sub"), 1U);
}

TEST(Files, FailuresNameTheFileAndTheReason)
{
    const ScratchFolder folder;
    folder.put("datei", "alt");
    fs::create_directory(folder.path() + "ordner");
    fs::create_symlink("kreis", folder.path() + "kreis");
    struct Row {
        std::string name;
        std::string reason;
    };
    const Row rows[] = {
        {"ordner", "es ist ein Ordner"},
        {"fehlt/x.wml", "Datei oder Ordner gibt es nicht"},
        {"datei/x.wml", "ein Teil des Pfades ist kein Ordner"},
        {"kreis", "die Verknüpfungen führen im Kreis"},
        {std::string(300, 'n'), "der Name ist zu lang"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto path = folder.path() + row.name;
        const auto text = [&](const char* action) {
            return "Die Datei „" + path + "“ kann nicht " + action + " werden: " + row.reason
                + ". Es wurde nichts geändert.";
        };
        EXPECT_EQ(failureOf([&] { static_cast<void>(readFile(path)); }), text("gelesen"));
        EXPECT_EQ(failureOf([&] { replaceFile(path, "neu"); }), text("geschrieben"));
    }
    EXPECT_EQ(folder.get("datei"), "alt");
    EXPECT_EQ(namesIn(folder.path()), 3U);
}

TEST(Files, AFullDiskLeavesTheOldFile)
{
    const ScratchFolder folder;
    const auto path = folder.path() + "deck.wml";
    replaceFile(path, "alt");
    {
        const SmallDisk disk(1000);
        const std::string_view reason = "die Datei wird zu groß";
        const std::string big(5000, 'x');
        EXPECT_NE(failureOf([&] { replaceFile(path, big); }).find(reason), std::string::npos);
        EXPECT_NE(failureOf([&] { replaceWorkFile(path, big); }).find(reason), std::string::npos);
    }
    EXPECT_EQ(readFile(path), "alt");
    EXPECT_EQ(namesIn(folder.path()), 1U);
    EXPECT_NE(failureOf([] { replaceFile("/dev/full", "x"); }).find("der Datenträger ist voll"),
        std::string::npos);
}

TEST(Files, ReplacingKeepsModeAndLinks)
{
    const ScratchFolder folder;
    folder.put("ziel/deck.wml", "alt");
    const auto target = folder.path() + "ziel/deck.wml";
    ::chmod(target.c_str(), 0640);
    fs::create_symlink("ziel/deck.wml", folder.path() + "verweis");
    fs::create_symlink("../verweis", folder.path() + "ziel/umweg");
    fs::create_symlink("ziel/neu.wml", folder.path() + "leer");

    replaceFile(folder.path() + "ziel/umweg", "neu");
    EXPECT_EQ(folder.get("ziel/deck.wml"), "neu");
    EXPECT_EQ(modeOf(target), 0640U);
    EXPECT_TRUE(fs::is_symlink(folder.path() + "verweis"));

    replaceFile(folder.path() + "leer", "erstes"); // a link to what is not there yet
    EXPECT_EQ(folder.get("ziel/neu.wml"), "erstes");

    const mode_t mask = ::umask(027);
    replaceFile(folder.path() + "frisch", "x");
    ::umask(mask);
    EXPECT_EQ(modeOf(folder.path() + "frisch"), 0640U);
}

TEST(Files, WriteProtectionHolds)
{
    if (::geteuid() == 0) GTEST_SKIP() << "nothing is protected from the administrator";
    const ScratchFolder folder;
    folder.put("deck.wml", "alt");
    ::chmod((folder.path() + "deck.wml").c_str(), 0440);
    EXPECT_THROW(replaceFile(folder.path() + "deck.wml", "neu"), FileFailure);
    EXPECT_EQ(folder.get("deck.wml"), "alt");
}

TEST(Files, ExistsMeansAFileBehindLinks)
{
    const ScratchFolder folder;
    folder.put("datei", "");
    fs::create_symlink("datei", folder.path() + "verweis");
    fs::create_symlink("fehlt", folder.path() + "leer");
    EXPECT_TRUE(fileExists(folder.path() + "datei"));
    EXPECT_TRUE(fileExists(folder.path() + "verweis"));
    EXPECT_FALSE(fileExists(folder.path() + "leer"));
    EXPECT_FALSE(fileExists(folder.path()));
    EXPECT_TRUE(regularFileExists(folder.path() + "verweis"));
    EXPECT_FALSE(regularFileExists(folder.path() + "leer"));
    EXPECT_FALSE(regularFileExists("/dev/null"));
}

} // namespace
} // namespace quillmere
