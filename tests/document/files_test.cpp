#include "document/platform/files.h"

#include "document/platform/disk_work_files.h"
#include "document/platform/file_system.h"
#include "document/platform/memory_work_files.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"
#include "support/scratch_folder.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

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

std::ptrdiff_t namesIn(const ScratchFolder& folder)
{
    return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
}

/// Runs `action` as on a disk that is full: no file grows beyond `bytes`.
template <class Action> std::string failureOnASmallDisk(rlim_t bytes, const Action& action)
{
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    ::getrlimit(RLIMIT_FSIZE, &old);
    const rlimit small{bytes, old.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    auto failure = failureOf(action);
    ::setrlimit(RLIMIT_FSIZE, &old);
    static_cast<void>(std::signal(SIGXFSZ, handler));
    return failure;
}

TEST(Files, ReadWhatWasWrittenByteForByteUpToALimit)
{
    const ScratchFolder folder;
    const auto path = folder.path() + "Stücke.wml";
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 100000U}) {
        const auto bytes = test::randomBytes(size, size);
        replaceFile(path, bytes);
        EXPECT_EQ(readFile(path, size), bytes) << size;
    }
    sigset_t held{};
    ::pthread_sigmask(SIG_BLOCK, nullptr, &held);
    EXPECT_EQ(sigismember(&held, SIGINT), 0) << "while a file is replaced only";
    EXPECT_THROW(static_cast<void>(readFile(path, 99999)), Overflow);
    EXPECT_THROW(static_cast<void>(readFile("/dev/zero", 1000)), Overflow);
    EXPECT_EQ(namesIn(folder), 1);
    fs::create_symlink("Stücke.wml", folder.path() + "verweis");
    fs::create_symlink("fehlt", folder.path() + "leer");
    EXPECT_TRUE(fileExists(path) && fileExists(folder.path() + "verweis"));
    EXPECT_FALSE(fileExists(folder.path() + "leer") || fileExists(folder.path()));
}

TEST(Files, FailuresNameTheFileAndTheReasonAndChangeNothing)
{
    const ScratchFolder folder;
    folder.put("datei", "alt");
    fs::create_directory(folder.path() + "ordner");
    fs::create_symlink("kreis", folder.path() + "kreis");
    const std::pair<std::string, std::string> rows[] = {
        {"ordner", "es ist ein Ordner"},
        {"fehlt/x.wml", "Datei oder Ordner gibt es nicht"},
        {"datei/x.wml", "ein Teil des Pfades ist kein Ordner"},
        {"kreis", "die Verknüpfungen führen im Kreis"},
        {std::string(300, 'n'), "der Name ist zu lang"},
    };
    for (const auto& [name, reason] : rows) {
        const auto path = folder.path() + name;
        const auto ahead = "Die Datei „" + path + "“ kann nicht ";
        const auto behind = " werden: " + reason + ". Es wurde nichts geändert.";
        EXPECT_EQ(
            failureOf([&] { static_cast<void>(readFile(path)); }), ahead + "gelesen" + behind);
        EXPECT_EQ(failureOf([&] { replaceFile(path, "neu"); }), ahead + "geschrieben" + behind);
    }
    const std::string big(5000, 'x');
    for (const auto replace : {replaceFile, replaceWorkFile}) {
        const auto failure
            = failureOnASmallDisk(1000, [&] { replace(folder.path() + "datei", big); });
        EXPECT_NE(failure.find("die Datei wird zu groß"), std::string::npos) << failure;
    }
    EXPECT_NE(failureOf([] { replaceFile("/dev/full", "x"); }).find("der Datenträger ist voll"),
        std::string::npos);
    EXPECT_EQ(folder.get("datei"), "alt");
    EXPECT_EQ(namesIn(folder), 3);
    EXPECT_EQ(failureOf([&] { DiskFileSystem().makeDirectory(folder.path() + "datei/x"); }),
        "Der Ordner „" + folder.path()
            + "datei/x“ kann nicht angelegt werden: ein Teil des Pfades ist kein Ordner.");
}

/// Ends a child that replaces the file without end once its first neighbour is there.
int endOfWriter(const ScratchFolder& folder, const std::string& bytes)
{
    const pid_t child = ::fork();
    if (child == 0) {
        failureOf([&] {
            while (true)
                replaceFile(folder.path() + "datei", bytes);
        });
        ::_exit(1);
    }
    for (int times = 0; times < 50000 && namesIn(folder) < 2; ++times)
        ::usleep(100);
    ::kill(child, SIGTERM);
    int state = 0;
    ::waitpid(child, &state, 0);
    return WIFSIGNALED(state) ? WTERMSIG(state) : 0;
}

TEST(Files, ReplacingLeavesNoNeighbourWhereTheProgramIsEnded)
{
    const ScratchFolder folder;
    folder.put("datei", "alt");
    const std::string bytes(1 << 20, 'x');
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(endOfWriter(folder, bytes), SIGTERM);
        ASSERT_EQ(namesIn(folder), 1);
        ASSERT_EQ(folder.get("datei"), bytes);
    }
}

TEST(Files, CreatingTakesNoNameThatThereIs)
{
    const ScratchFolder folder;
    const auto model = folder.put("deck.wml", "alt");
    ::chmod(model.c_str(), 0640);
    createFile(model + ".bak", "kopie", model);
    EXPECT_EQ(modeOf(model + ".bak"), 0640U);
    fs::create_symlink("fehlt", folder.path() + "leer");
    for (const char* name : {"deck.wml.bak", "leer"})
        EXPECT_NE(failureOf([&] {
            createFile(folder.path() + name, "x", model);
        }).find("es gibt schon eine Datei mit diesem Namen"),
            std::string::npos);
    EXPECT_EQ(folder.get("deck.wml.bak"), "kopie");
    failureOnASmallDisk(2, [&] { createFile(folder.path() + "voll", "xyz", model); });
    EXPECT_EQ(namesIn(folder), 3);
}

TEST(Files, ReplacingKeepsModeAndLinksAndWriteProtection)
{
    const ScratchFolder folder;
    const auto target = folder.put("ziel/deck.wml", "alt");
    ::chmod(target.c_str(), 0640);
    fs::create_symlink("ziel/deck.wml", folder.path() + "verweis");
    fs::create_symlink("../verweis", folder.path() + "ziel/umweg");
    fs::create_symlink("ziel/neu.wml", folder.path() + "leer"); // to what is not there yet
    replaceFile(folder.path() + "ziel/umweg", "neu");
    replaceFile(folder.path() + "leer", "erstes");
    EXPECT_EQ(folder.get("ziel/deck.wml"), "neu");
    EXPECT_EQ(folder.get("ziel/neu.wml"), "erstes");
    EXPECT_EQ(modeOf(target), 0640U);
    EXPECT_TRUE(fs::is_symlink(folder.path() + "verweis"));

    const mode_t mask = ::umask(027);
    replaceFile(folder.path() + "frisch", "x");
    ::umask(mask);
    EXPECT_EQ(modeOf(folder.path() + "frisch"), 0640U);

    if (::geteuid() == 0) return; // nothing is protected from the administrator
    ::chmod(target.c_str(), 0440);
    EXPECT_THROW(replaceFile(target, "x"), FileFailure);
    EXPECT_EQ(folder.get("ziel/deck.wml"), "neu");
}

TEST(DiskFileSystem, TellsFilesFromDirectoriesAndMakesThem)
{
    const ScratchFolder folder;
    folder.put("b/x.wml", "");
    folder.put(".hidden/y", "");
    DiskFileSystem disk;
    disk.makeDirectory(folder.path() + "a");
    disk.makeDirectory(folder.path() + "a/"); // is there already
    EXPECT_EQ(disk.directoriesIn(folder.path()), (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(disk.directoryExists(folder.path() + "a/"));
    EXPECT_TRUE(disk.fileExists(folder.path() + "b/x.wml"));
    EXPECT_FALSE(disk.directoryExists(folder.path() + "b/x.wml"));
    EXPECT_FALSE(disk.fileExists(folder.path() + "b") || disk.fileExists(folder.path() + "c"));
}

template <class Store> class WorkFilesTest : public testing::Test {
};
using Stores = testing::Types<MemoryWorkFiles, DiskWorkFiles>;
TYPED_TEST_SUITE(WorkFilesTest, Stores);

TYPED_TEST(WorkFilesTest, KeepWhatIsWrittenUnderTheLowestFreeNames)
{
    TypeParam files;
    const auto path = [&](const std::string& name) { return files.directory() + name; };
    for (const char* name : {"Wml0.htm", "Wml1.htm", "Wml2.htm"})
        EXPECT_EQ(files.createFile("Wml", ".htm"), name);
    for (int times = 0; times < 2; ++times) // was not made
        EXPECT_EQ(files.unusedName("Wml", ".wml"), "Wml0.wml"); // another suffix, another count
    const std::string bytes("a\0\r\n\xFF", 5);
    files.write(path("Wml0.wml"), bytes);
    EXPECT_EQ(files.read(path("Wml0.wml")), bytes);
    EXPECT_EQ(files.unusedName("Wml", ".wml"), "Wml1.wml");
    for (int times = 0; times < 2; ++times)
        files.remove(path("Wml1.htm"));
    EXPECT_THROW(static_cast<void>(files.read(path("Wml1.htm"))), FileFailure);
    EXPECT_EQ(files.unusedName("Wml", ".htm"), "Wml1.htm");
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml1.htm");
    EXPECT_EQ(files.createFile("Wml", ".htm"), "Wml3.htm");
}

TEST(DiskWorkFiles, AreForThisRunAloneAndNeverGoThroughALink)
{
    const ScratchFolder folder;
    folder.put("fremd", "fremd");
    std::optional<DiskWorkFiles> files(folder.path());
    const DiskWorkFiles others(folder.path());
    const auto directory = files->directory();
    EXPECT_NE(directory, others.directory());
    EXPECT_EQ(modeOf(directory), 0700U);
    EXPECT_EQ(modeOf(directory + files->createFile("Bmp", ".bmp")), 0600U);
    fs::create_symlink(folder.path() + "fremd", directory + "Wml0.htm");
    fs::create_symlink(folder.path() + "fehlt", directory + "Wml1.htm");
    EXPECT_EQ(files->unusedName("Wml", ".htm"), "Wml2.htm");
    EXPECT_EQ(files->createFile("Wml", ".htm"), "Wml2.htm");
    files->write(directory + "Wml0.htm", "neu"); // takes the link's place
    EXPECT_EQ(files->read(directory + "Wml0.htm"), "neu");
    EXPECT_EQ(folder.get("fremd"), "fremd");
    files.reset();
    EXPECT_FALSE(fs::exists(directory));
    EXPECT_TRUE(fs::exists(others.directory()));
}

TEST(DiskWorkFiles, KeepTheirTextsWhateverBecomesOfTheDisk)
{
    const ScratchFolder folder;
    const struct {
        const char* name;
        std::function<void(const std::string&)> harm, mend;
    } rows[] = {
        {"the directory is gone", [](auto& path) { fs::remove_all(path); }, {}},
        {"a file has its place",
            [](auto& path) {
                fs::remove_all(path);
                replaceFile(path.substr(0, path.size() - 1), "x");
            },
            [](auto& path) { fs::remove(path.substr(0, path.size() - 1)); }},
        {"somebody else made it anew",
            [](auto& path) {
                fs::remove_all(path);
                fs::create_directory(path);
            },
            [](auto& path) { fs::remove_all(path); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        DiskWorkFiles files(folder.path());
        const auto path = files.directory();
        files.write(path + "a", "eins");
        row.harm(path);
        files.write(path + "b", "zwei");
        EXPECT_EQ(files.read(path + "a") + files.read(path + "b"), "einszwei");
        EXPECT_EQ(files.trouble().has_value(), static_cast<bool>(row.mend));
        if (row.mend) row.mend(path);
        files.write(path + "c", "drei");
        EXPECT_FALSE(files.trouble());
        for (const char* name : {"a", "b", "c"})
            EXPECT_EQ(readFile(path + name), files.read(path + name));
        EXPECT_EQ(modeOf(path), 0700U);
    }
    DiskWorkFiles files(folder.path());
    const auto big = files.directory() + "big";
    failureOnASmallDisk(1000, [&] { files.write(big, std::string(5000, 'x')); });
    EXPECT_TRUE(files.trouble()) << "the disk is full";
    EXPECT_EQ(files.read(big).size(), 5000U);
    files.write(files.directory() + "a", "");
    EXPECT_EQ(readFile(big).size(), 5000U) << "all is brought there once it can";
    DiskWorkFiles nowhere(folder.path() + "fehlt/");
    EXPECT_TRUE(nowhere.trouble());
    EXPECT_EQ(nowhere.createFile("Wml", ".htm"), "Wml0.htm");
}

} // namespace
} // namespace quillmere
