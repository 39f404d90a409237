#include "document/text/windows1252.h"

#include "document/text/text_search.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

std::string allCharacters()
{
    std::string result;
    for (int code = 0; code < 256; ++code)
        result += static_cast<char>(code);
    return result;
}

TEST(Windows1252, EveryCharacterComesBackFromUtf8)
{
    EXPECT_EQ(fromUtf8(toUtf8(allCharacters())), allCharacters());
    EXPECT_EQ(toUtf8("\x80\x93\xE4\xFF"), "\u20AC\u201C\u00E4\u00FF");
    EXPECT_EQ(toCodePoint('\x81'), 0x81U); // left open by the code table
}

TEST(Windows1252, ReadsUtf8)
{
    const char* const rows[][2] = {
        {"a\u00E4\u20AC", "a\xE4\x80"},
        {"\u2212\U0001F600\u0085", "&#8722;&#128512;&#133;"}, // not in the code table
        {"\u07FF\uFFFD\U0010FFFF", "&#2047;&#65533;&#1114111;"}, // largest of each length
        {"\xE2\x82", "\xE2\x82"}, // cut at the end
        {"\xC3x", "\xC3x"}, {"\xA4", "\xA4"}, // a byte that only goes on
        {"\xC0\xBC\xE0\x80\xBC\xF0\x80\x80\xBC", // longer than needed
            "\xC0\xBC\xE0\x80\xBC\xF0\x80\x80\xBC"},
        {"\xED\xA0\x80\xED\xBF\xBF", "\xED\xA0\x80\xED\xBF\xBF"}, // halves of pairs
        {"\xF4\x90\x80\x80\xF5", "\xF4\x90\x80\x80\xF5"}, // beyond Unicode
    };
    for (const auto& row : rows)
        EXPECT_EQ(fromUtf8(row[0]), row[1]);
}

TEST(Windows1252, DeckBytesDecideTheirEncoding)
{
    EXPECT_EQ(textFromDeckBytes("\xEF\xBB\xBF<wml>\u00E4"), "<wml>\xE4");
    EXPECT_EQ(textFromDeckBytes("\xEF\xBB\xBF"), "");
    EXPECT_EQ(textFromDeckBytes("<wml>\u00E4"), "<wml>\xE4");
    EXPECT_EQ(textFromDeckBytes("<wml>\xE4 \u00E4"), "<wml>\xE4 \u00E4"); // not valid as a whole
    EXPECT_EQ(
        textFromDeckBytes("<?xml encoding=\"UTF-8\"?>\xE4"), "<?xml encoding=\"UTF-8\"?>\xE4");
}

/// Small letters as their Unicode numbers tell them, without a table of the code page.
char32_t lowerOf(char32_t point)
{
    if (point == 0x178) return 0xFF;
    const bool latin
        = (point >= 'A' && point <= 'Z') || (point >= 0xC0 && point <= 0xDE && point != 0xD7);
    if (latin) return point + 0x20;
    return point == 0x160 || point == 0x152 || point == 0x17D ? point + 1 : point;
}

TEST(Windows1252, LowersLettersWithAccents)
{
    for (const char character : allCharacters())
        EXPECT_EQ(toCodePoint(lowerCase(character)), lowerOf(toCodePoint(character)));
    EXPECT_TRUE(equalIgnoringCase("\xC4pfel\x8A", "\xE4PFEL\x9A"));
    EXPECT_FALSE(equalIgnoringCase("ab", "abc"));
}

// Long enough for whole blocks, with keys on either side of each border between two.
TEST(TextSearch, FindsAllKeysOfALongText)
{
    constexpr std::string_view kTokens[] = {"<p", "</P", ">", "x", "P", "<", "<P>&nbsp;x", "\xE4"};
    const std::string text = test::randomSoup(1, kTokens, 300);
    for (const std::string_view key : {"<p", "</p", "<", ">", "x", "px", "<p>&nbsp;x"}) {
        std::size_t last = npos;
        for (std::size_t from = 0; from <= text.size(); ++from) {
            auto at = from;
            while (at < text.size() && !standsAt(text, at, key))
                ++at;
            ASSERT_EQ(findIgnoringCase(text, key, from), at < text.size() ? at : npos) << key;
            if (from > 0 && standsAt(text, from - 1, key)) last = from - 1;
            ASSERT_EQ(findLastIgnoringCase(text, key, from), last) << key << from;
        }
    }
}

} // namespace
} // namespace quillmere
