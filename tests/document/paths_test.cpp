#include "document/platform/paths.h"

#include "app/settings.h"
#include "document/complete_url.h"
#include "document/last_path.h"
#include "document/platform/path_checks.h"
#include "document/text/number_texts.h"
#include "document/text/windows1252.h"
#include "support/fake_platform.h"

#include <gtest/gtest.h>

#include <tuple>

// Both path styles on any machine, and what a person types into fields for names and numbers.

namespace quillmere {
namespace {

constexpr auto kWindows = PathStyle::Windows;
constexpr auto kPosix = PathStyle::Posix;
using Names = std::vector<std::string>;

TEST(Paths, NormaliseToAbsoluteDirectoriesThatStayAsTheyAre)
{
    const std::tuple<PathStyle, const char*, const char*, const char*> rows[] = {
        {kPosix, "/a//b/./c/", "/home", "/a/b/c/"},
        {kPosix, "x", "/home/me", "/home/me/x/"},
        {kPosix, "../x", "/home", "/home/../x/"}, // what is ahead of ".." may be a link
        {kPosix, R"(a\b)", "/", R"(/a\b/)"}, // a name with a backslash in it
        {kPosix, "", "/home", ""},
        {kWindows, "C:", R"(D:\x)", R"(C:\)"},
        {kWindows, R"(C:\a/b)", R"(D:\x)", R"(C:\a\b\)"},
        {kWindows, R"(C:\a\..\b\.\c)", R"(D:\x)", R"(C:\b\c\)"},
        {kWindows, R"(C:\..\a)", R"(D:\x)", R"(C:\a\)"},
        {kWindows, "a", R"(D:\x\)", R"(D:\x\a\)"},
    };
    for (const auto& [style, path, current, wanted] : rows) {
        const auto normal = NormalisePath(path, style, current);
        EXPECT_EQ(normal, wanted) << path;
        EXPECT_EQ(NormalisePath(normal, style, current), normal);
    }
}

TEST(MakeDirectories, MakesEachMissingLevelAsksAndEndsAtNoOrAFailure)
{
    test::ScriptedPrompter person;
    test::FakeDisk disk;
    disk.directories = {R"(C:\a)", "/home"};
    disk.readOnly = "/home/r/b";
    EXPECT_TRUE(MakeDirectories(R"(C:\a\b\c)", false, person, disk, kWindows));
    EXPECT_TRUE(MakeDirectories(R"(D:\x\)", false, person, disk, kWindows)); // never "D:" itself
    EXPECT_TRUE(MakeDirectories("/home/a//b/", false, person, disk, kPosix));
    EXPECT_TRUE(MakeDirectories("x/y", false, person, disk, kPosix));
    EXPECT_FALSE(MakeDirectories("", false, person, disk, kPosix));
    EXPECT_THROW((void)MakeDirectories("/home/r/b/c", false, person, disk, kPosix), FileFailure);
    person.answers = {false, true};
    EXPECT_FALSE(MakeDirectories("/home/q/b/", true, person, disk, kPosix));
    EXPECT_TRUE(MakeDirectories("/home/p/b/", true, person, disk, kPosix));
    EXPECT_TRUE(MakeDirectories("/home/p", true, person, disk, kPosix)); // nothing to ask
    EXPECT_EQ(disk.made,
        (Names{R"(C:\a\b)", R"(C:\a\b\c)", R"(D:\x)", "/home/a", "/home/a//b", "x", "x/y",
            "/home/r", "/home/p", "/home/p/b"}));
    EXPECT_EQ(person.log, (Names{"128: /home/q/b", "128: /home/p/b"})); // once for the whole path
}

TEST(AppDirectory, IsTheDirectoryOfTheProgramOrOfItsInstalledData)
{
    test::FakeDisk disk;
    EXPECT_EQ(appDirectoryOf("/opt/q/bin/quillmere", disk), "/opt/q/bin/");
    disk.directories = {"/opt/q/share/quillmere"};
    EXPECT_EQ(appDirectoryOf("/opt/q/bin/quillmere", disk), "/opt/q/share/quillmere/");
    EXPECT_EQ(appDirectoryOf("/opt/q/build/quillmere", disk), "/opt/q/build/");
}

TEST(LastPath, KeepsRootsWholeAndFallsBackToTheDeckAndThePersonsFolder)
{
    test::FakeDisk disk;
    test::FakeDrives drives;
    MemorySettings settings;
    Deck deck;
    const auto last = [&](PathStyle style) {
        return GetLastPath("Last", settings, deck, {disk, drives, style});
    };
    drives.current = "/home/me/";
    EXPECT_EQ(last(kPosix), "/home/me");
    disk.directories = {"/home/me/Eigene Dateien", R"(C:\Alles)", R"(C:\eigene Dateien)"};
    EXPECT_EQ(last(kPosix), "/home/me/Eigene Dateien");
    drives.current = "C:\\";
    EXPECT_EQ(last(kWindows), R"(C:\eigene Dateien)");
    deck.resize(2);
    deck.front().deckDir = R"(D:\projekt\)";
    EXPECT_EQ(last(kWindows), R"(C:\eigene Dateien)"); // no deck is open
    deck.front().inUse = true;
    EXPECT_EQ(last(kWindows), R"(D:\projekt)");

    disk.files = {"/p/index.wml"};
    EXPECT_TRUE(HasIndexPage("/p", deck, disk) && HasIndexPage("/p/", deck, disk));
    deck.front().deckDir = "/p/";
    EXPECT_TRUE(HasIndexPage("", deck, disk)); // beside the open deck
    EXPECT_FALSE(HasIndexPage("/q/", deck, disk));

    for (const auto& [style, path] : {std::pair(kWindows, R"(C:\)"), std::pair(kPosix, "/")}) {
        SetLastPath(path, "Last", settings, style);
        EXPECT_EQ(last(style), path);
    }
    SetLastPath("/a/", "Last", settings, kPosix);
    EXPECT_EQ(last(kPosix), "/a");
}

// The characters of code page 850 that stand in names, written as Windows-1252.
TEST(CheckedNames, HaveJustTheseCharacters)
{
    const std::string allowed
        = fromUtf8("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._ äöüÄÖÜ");
    for (int code = ' '; code < 256; ++code) {
        const char character = static_cast<char>(code);
        const bool isAllowed = allowed.find(character) != std::string::npos;
        const std::string tried = std::string("a") + character;
        EXPECT_EQ(CheckFileName(tried).has_value(), isAllowed) << code;
        EXPECT_EQ(CheckPath("/" + tried).has_value(), isAllowed || character == '/') << code;
        const bool isDriveSign = character == '\\' || character == ':';
        EXPECT_EQ(CheckPath("C:" + tried, kWindows).has_value(), isAllowed || isDriveSign) << code;
    }
}

TEST(CheckedNames, AreCompletedAndCutAtThePoint)
{
    using Checked = std::optional<std::string>;
    const auto asName = [](const std::string& text) { return CheckFileName(text); };
    const auto onWindows = [](const std::string& text) { return CheckPath(text, kWindows); };
    const auto onPosix = [](const std::string& text) { return CheckPath(text, kPosix); };
    const auto special = [](const std::string& text) { return CheckPathSpecial(text, kPosix); };
    const struct {
        Checked (*check)(const std::string&);
        const char *text, *wanted; // "": refused
    } rows[] = {{asName, "Müller.WML", "Müller.wml"}, {asName, " Über uns .x", "Über uns.wml"},
        {asName, ".wml", ".wml"}, {asName, "a.b.c", ""}, {onWindows, "C:", R"(C:\)"},
        {onWindows, R"(C:\daten\x.y\z)", R"(C:\daten\x)"}, {onWindows, "C:.x", R"(C:\)"},
        {onWindows, "daten", ""}, {onPosix, "/", "/"}, {onPosix, "/home/Büro/x.y", "/home/Büro/x"},
        {onPosix, "//x", ""}, {onPosix, "", ""}, {special, "/B\nüroß", "/Büro"},
        {special, "\x02é", ""}, {special, "/a&b", ""}};
    for (const auto& row : rows)
        EXPECT_EQ(toUtf8(row.check(fromUtf8(row.text)).value_or("")), row.wanted) << row.text;
}

TEST(CompleteUrl, OffersWhatIsMissing)
{
    // What is typed, and what is offered for it, if anything.
    const char* const rows[][2] = {{"www.a.de", "http://www.a.de"},
        {" WWW.a.de ", "http://WWW.a.de"}, {"a.de/b", "http://www.a.de/b"},
        {R"(a\b)", R"(http://www.a\b)"}, {"a.wml", "http://www.a.wml"}, {"HTTP://a/b", nullptr},
        {" http:x ", nullptr}, {"#karte", nullptr}, {" Wort ", nullptr}, {"", nullptr}};
    for (const auto& [text, offer] : rows) {
        for (const bool assents : {true, false}) {
            test::ScriptedPrompter person;
            if (offer != nullptr) person.answers = {assents};
            const bool isTaken = assents && offer != nullptr;
            EXPECT_EQ(CompleteUrl(text, person), isTaken ? offer : text);
            const auto log = person.log.empty() ? "" : person.log.front();
            EXPECT_EQ(log, offer == nullptr ? "" : std::string("129: ") + offer);
        }
    }
}

TEST(NumberTexts, AreDecimalOrCleaned)
{
    const std::tuple<const char*, bool, const char*> rows[]
        = {{"12", true, "12"}, {"1,5", true, "15"}, {",5", false, "5"}, {"1,2,3", false, ""},
            {"12345678901", true, "12345678"}, {" 42 ", false, "42"}, {"1.000", false, "1000"},
            {"1a", false, ""}, {",", false, ""}, {"1-2", false, ""}, {"      1234", false, "12"}};
    for (const auto& [text, isDecimal, cleaned] : rows) {
        EXPECT_EQ(IsDecimal(text), isDecimal) << text;
        EXPECT_EQ(CleanNumberText(text), cleaned);
    }
    for (int bit = 1; bit <= 32; ++bit)
        EXPECT_TRUE(BitIsSet(1U << (bit - 1), bit) && !BitIsSet(~(1U << (bit - 1)), bit)) << bit;
    EXPECT_FALSE(BitIsSet(~0U, 0) || BitIsSet(~0U, 33));
}

} // namespace
} // namespace quillmere
