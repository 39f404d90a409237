#include "document/last_path.h"

#include "app/settings.h"
#include "support/fake_platform.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

struct Machine {
    PathStyle style = kNativePathStyle;
    test::FakeDisk disk;
    test::FakeDrives drives;
    MemorySettings settings;
    Deck deck;

    explicit Machine(PathStyle wanted)
        : style(wanted)
    {
        drives.current = isWindows() ? "C:\\" : "/home/me/";
    }
    [[nodiscard]] bool isWindows() const { return style == PathStyle::Windows; }
    void openDeckIn(const std::string& directory)
    {
        deck.resize(2);
        deck.front().inUse = true;
        deck.front().deckDir = directory;
    }
    [[nodiscard]] std::string last() const
    {
        return GetLastPath("LastPath1", settings, deck, {disk, drives, style});
    }
};

TEST(LastPath, KeepsFoldersWithoutTheirSeparatorButRootsWhole)
{
    const struct {
        PathStyle style;
        const char *path, *kept;
    } rows[]
        = {{PathStyle::Windows, R"(C:\)", R"(C:\)"}, {PathStyle::Windows, R"(C:\a\)", R"(C:\a)"},
            {PathStyle::Windows, "C:", R"(C:\)"}, {PathStyle::Posix, "/", "/"},
            {PathStyle::Posix, "/a/", "/a"}, {PathStyle::Posix, "/a", "/a"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        Machine machine(row.style);
        SetLastPath(row.path, "LastPath1", machine.settings, row.style);
        EXPECT_EQ(machine.settings.ReadSetting("LastPath1"), row.kept);
        EXPECT_EQ(machine.last(), row.kept);
    }
}

TEST(LastPath, FallsBackToTheDeckAndThenToThePersonsFolder)
{
    Machine windows(PathStyle::Windows);
    EXPECT_EQ(windows.last(), R"(C:\)");
    windows.disk.directories = {R"(C:\Alles)", R"(C:\eigene Dateien)", R"(C:\x\Eigene)"};
    EXPECT_EQ(windows.last(), R"(C:\eigene Dateien)");
    windows.openDeckIn(R"(D:\projekt\)");
    EXPECT_EQ(windows.last(), R"(D:\projekt)");
    windows.deck.front().inUse = false;
    EXPECT_EQ(windows.last(), R"(C:\eigene Dateien)");

    Machine posix(PathStyle::Posix);
    EXPECT_EQ(posix.last(), "/home/me");
    posix.disk.directories = {"/home/me/Eigene Dateien"};
    EXPECT_EQ(posix.last(), "/home/me/Eigene Dateien");
}

TEST(HasIndexPage, LooksInTheDirectoryOrTheOpenDecks)
{
    Machine machine(PathStyle::Posix);
    machine.disk.files = {"/p/index.wml"};
    EXPECT_TRUE(HasIndexPage("/p/", machine.deck, machine.disk));
    EXPECT_TRUE(HasIndexPage("/p", machine.deck, machine.disk));
    EXPECT_FALSE(HasIndexPage("/q/", machine.deck, machine.disk));
    EXPECT_FALSE(HasIndexPage("", machine.deck, machine.disk));
    machine.openDeckIn("/p/");
    EXPECT_TRUE(HasIndexPage("", machine.deck, machine.disk));
    machine.deck.front().inUse = false;
    EXPECT_FALSE(HasIndexPage("", machine.deck, machine.disk));
}

} // namespace
} // namespace quillmere
