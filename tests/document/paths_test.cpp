#include "document/paths.h"

#include "support/fake_platform.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr auto kWindows = PathStyle::Windows;
constexpr auto kPosix = PathStyle::Posix;

TEST(Paths, SplitAtTheLastSeparatorOfEitherStyle)
{
    const struct {
        const char *path, *directory, *name;
    } rows[] = {{"/a/b.wml", "/a/", "b.wml"}, {R"(C:\a\b.wml)", R"(C:\a\)", "b.wml"},
        {R"(a\b/c)", R"(a\b/)", "c"}, {R"(a/b\c)", R"(a/b\)", "c"}, {"b.wml", "", "b.wml"},
        {"/a/", "/a/", ""}, {"/", "/", ""}, {"", "", ""}, {"C:b.wml", "", "C:b.wml"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        const auto split = SplitPath(row.path);
        EXPECT_EQ(split.directory, row.directory);
        EXPECT_EQ(split.name, row.name);
    }
}

TEST(Paths, NormaliseToAbsoluteDirectoriesThatStayAsTheyAre)
{
    const struct {
        PathStyle style;
        const char *path, *current, *wanted;
    } rows[] = {
        {kPosix, "/a/b", "/home", "/a/b/"},
        {kPosix, "/a//b/./c/", "/home", "/a/b/c/"},
        {kPosix, "x", "/home/me", "/home/me/x/"},
        {kPosix, "x", "/", "/x/"},
        {kPosix, "../x", "/home", "/home/../x/"}, // what is ahead of ".." may be a link
        {kPosix, R"(a\b)", "/", R"(/a\b/)"}, // a name with a backslash in it
        {kPosix, "/", "/home", "/"},
        {kPosix, "", "/home", ""},
        {kWindows, "C:", R"(D:\x)", R"(C:\)"},
        {kWindows, R"(C:\a/b)", R"(D:\x)", R"(C:\a\b\)"},
        {kWindows, R"(C:\a\..\b\.\c)", R"(D:\x)", R"(C:\b\c\)"},
        {kWindows, R"(C:\..\a)", R"(D:\x)", R"(C:\a\)"},
        {kWindows, "a", R"(D:\x\)", R"(D:\x\a\)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.current) + " " + row.path);
        const auto normal = NormalisePath(row.path, row.style, row.current);
        EXPECT_EQ(normal, row.wanted);
        EXPECT_EQ(NormalisePath(normal, row.style, row.current), normal);
    }
    EXPECT_TRUE(NormalisePath(".").starts_with('/'));
}

TEST(Paths, RootsKeepTheirSeparator)
{
    EXPECT_EQ(withoutSeparator(R"(C:\a\)", kWindows), R"(C:\a)");
    EXPECT_EQ(withoutSeparator(R"(C:\)", kWindows), R"(C:\)");
    EXPECT_EQ(withoutSeparator("C:", kWindows), R"(C:\)");
    EXPECT_EQ(withoutSeparator("/a/", kPosix), "/a");
    EXPECT_EQ(withoutSeparator("/a", kPosix), "/a");
    EXPECT_EQ(withoutSeparator("/", kPosix), "/");
    EXPECT_EQ(withoutSeparator("", kPosix), "");
}

using Names = std::vector<std::string>;

TEST(MakeDirectories, MakesEachMissingLevelInItsTurn)
{
    test::ScriptedPrompter nobody;
    test::FakeDisk disk;
    disk.directories = {R"(C:\a)", "/home"};
    EXPECT_TRUE(MakeDirectories(R"(C:\a\b\c)", false, nobody, disk, kWindows));
    EXPECT_TRUE(MakeDirectories(R"(D:\x\)", false, nobody, disk, kWindows)); // never "D:" itself
    EXPECT_TRUE(MakeDirectories("/home/a//b/", false, nobody, disk, kPosix));
    EXPECT_TRUE(MakeDirectories("x/y", false, nobody, disk, kPosix));
    EXPECT_EQ(disk.made,
        (Names{R"(C:\a\b)", R"(C:\a\b\c)", R"(D:\x)", "/home/a", "/home/a//b", "x", "x/y"}));
    EXPECT_FALSE(MakeDirectories("", false, nobody, disk, kPosix));
}

TEST(MakeDirectories, AsksOnceForTheWholePath)
{
    test::ScriptedPrompter person({false, true, true});
    test::FakeDisk disk;
    disk.directories = {"/home"};
    EXPECT_FALSE(MakeDirectories("/home/a/b/", true, person, disk, kPosix));
    EXPECT_TRUE(disk.made.empty());
    EXPECT_TRUE(MakeDirectories("/home/a/b/", true, person, disk, kPosix));
    EXPECT_EQ(disk.made, (Names{"/home/a", "/home/a/b"}));
    EXPECT_TRUE(MakeDirectories("/home/a", true, person, disk, kPosix)); // nothing to ask
    EXPECT_TRUE(MakeDirectories(R"(C:\x\y)", true, person, disk, kWindows));
    EXPECT_EQ(person.questions, (Names{"128: /home/a/b", "128: /home/a/b", R"(128: C:\x\y)"}));
}

TEST(MakeDirectories, AFailureEndsItAndKeepsWhatIsAheadOfIt)
{
    test::ScriptedPrompter nobody;
    test::FakeDisk disk;
    disk.readOnly = "/a/b";
    EXPECT_THROW((void)MakeDirectories("/a/b/c", false, nobody, disk, kPosix), FileFailure);
    EXPECT_EQ(disk.made, Names{"/a"});
}

TEST(AppDirectory, IsTheDirectoryOfTheProgramOrOfItsInstalledData)
{
    test::FakeDisk disk;
    EXPECT_EQ(appDirectoryOf("/opt/q/bin/quillmere", disk), "/opt/q/bin/");
    disk.directories = {"/opt/q/share/quillmere"};
    EXPECT_EQ(appDirectoryOf("/opt/q/bin/quillmere", disk), "/opt/q/share/quillmere/");
    EXPECT_EQ(appDirectoryOf("/opt/q/build/quillmere", disk), "/opt/q/build/");
    EXPECT_TRUE(DiskFileSystem().directoryExists(AppDirectory()));
    EXPECT_TRUE(DiskFileSystem().directoryExists(SystemDirectory()));
}

} // namespace
} // namespace quillmere
