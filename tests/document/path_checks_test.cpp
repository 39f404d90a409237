#include "document/path_checks.h"

#include "document/windows1252.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr const char* kRefused = nullptr;

void expectChecked(const std::optional<std::string>& checked, const char* wanted)
{
    if (wanted == nullptr)
        EXPECT_EQ(checked, std::nullopt);
    else
        EXPECT_EQ(checked, fromUtf8(wanted));
}

TEST(CheckFileName, TakesNamesAndGivesThemTheirEnding)
{
    const struct {
        const char *name, *wanted;
    } rows[] = {{"Müller.WML", "Müller.wml"}, {"seite", "seite.wml"}, {"seite.txt", "seite.wml"},
        {" Über uns .x", "Über uns.wml"}, {"a-b_1", "a-b_1.wml"}, {".wml", ".wml"},
        {"a.b.c", kRefused}, {"a..", kRefused}, {"", kRefused}, {"  ", kRefused}, {"a&b", kRefused},
        {"a/b", kRefused}, {"a:b", kRefused}, {"Straße", kRefused}, {"café", kRefused},
        {"a€", kRefused}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        expectChecked(CheckFileName(fromUtf8(row.name)), row.wanted);
    }
}

// The characters of code page 850 that stand in names, written as Windows-1252.
TEST(CheckFileName, LetsJustTheseCharactersThrough)
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
        EXPECT_EQ(CheckPath("C:" + tried, PathStyle::Windows).has_value(), isAllowed || isDriveSign)
            << code;
    }
}

TEST(CheckPath, CompletesDrivesAndCutsAtThePoint)
{
    const struct {
        PathStyle style;
        const char *path, *wanted;
    } rows[] = {
        {PathStyle::Windows, "C:", R"(C:\)"},
        {PathStyle::Windows, "C:daten", R"(C:\daten)"},
        {PathStyle::Windows, R"(C:\daten\x.y\z)", R"(C:\daten\x)"},
        {PathStyle::Windows, "C:.x", R"(C:\)"},
        {PathStyle::Windows, R"(C:\\x)", kRefused},
        {PathStyle::Windows, "daten", kRefused},
        {PathStyle::Windows, "C:/x", kRefused},
        {PathStyle::Windows, "", kRefused},
        {PathStyle::Posix, "/", "/"},
        {PathStyle::Posix, "/home/Büro/x.y", "/home/Büro/x"},
        {PathStyle::Posix, "//x", kRefused},
        {PathStyle::Posix, "home", kRefused},
        {PathStyle::Posix, "C:/x", kRefused},
        {PathStyle::Posix, R"(/a\b)", kRefused},
        {PathStyle::Posix, "", kRefused},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        expectChecked(CheckPath(fromUtf8(row.path), row.style), row.wanted);
    }
}

TEST(CheckPathSpecial, CutsControlAndHighCharactersOut)
{
    expectChecked(CheckPathSpecial(fromUtf8("C:\x01\\dé\tß\x1f"
                                            "aten"),
                      PathStyle::Windows),
        R"(C:\daten)");
    expectChecked(CheckPathSpecial(fromUtf8("/B\nüroß")), "/Büro");
    expectChecked(CheckPathSpecial(fromUtf8("\x02é")), kRefused);
    expectChecked(CheckPathSpecial("/a&b"), kRefused);
}

} // namespace
} // namespace quillmere
