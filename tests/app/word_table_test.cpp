#include "app/word_table.h"

#include "app/resource_text.h"
#include "support/small_random.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace quillmere {
namespace {

TEST(ResourceText, AttributesReadAlikeWithQuotesAndWithout)
{
    const char* const rows[][3]
        = {{R"(<word id="5" rem="a b">)", "id=", "5"}, {R"(<WORD ID = 5 Id= "6">)", "id=", "6"},
            {R"(<word id="5" rem="a=b > c">)", "rem=", "a=b > c"},
            {R"(<word rem=a b id=7>)", "rem=", "a"}, {"<word rem= b>", "rem=", ""},
            {R"(<word formid="a" id="b">)", "id=", "a"}, // the first place, also within a name
            {R"(<word rem="a b id=5>)", "rem=", "a b id"}, {"<word rem=a", "rem=", "a"},
            {"<word rem=", "rem=", ""}, {"<word>", "rem=", ""}};
    for (const auto& row : rows)
        EXPECT_EQ(resourceAttribute(row[0], row[1]), row[2]) << row[0];
    EXPECT_EQ(shortNumber(" 32767 "), 32767);
    EXPECT_EQ(shortNumber("-32768"), -32768);
    for (const auto* text :
        {"32768", "-32769", "99999999999999999999", " ", "1a", "1 2", "0x1", "--1"})
        EXPECT_EQ(shortNumber(text), std::nullopt) << text;
}

TEST(WordTable, ReadsTheTextForm)
{
    const std::pair<const char*, WordTable> rows[] = {
        {"<word id=\"2\" group=\"g\" rem=\"r\"> Zwei\r\nte Zeile </word>\n"
         "<WORD rem=\"a\" id=1>Eins<word id=3>Drei</word><word id=2>Zwei</word",
            {{}, {"Eins", "", "a"}, {"Zwei", "", ""}, {"Drei", "", ""}}},
        {"x<word id=0>1</word</word>y<WORD id=1>2", {{"1", "", ""}, {"2", "", ""}}},
        {"<word id=0 <word id=1>2", {{}, {"2", "", ""}}}, // its ">" is another's
        {"<word id=0</word>1</word>", {}},
        {"<word id=-1>a<word id=32768>a<word id=99999999999>a<word id=1x>a<word id=\"\">a", {}},
    };
    for (const auto& [text, table] : rows)
        EXPECT_EQ(wordsFromText(text), table) << text;
    EXPECT_EQ(wordsFromText("<word id=32767>a</word>").size(), 32768U);
}

TEST(WordTable, BothFormsReadAlike)
{
    const std::string longText = std::string(999, 'a') + " b";
    const auto table
        = wordsFromText("<word id=3 group=\" g \" rem=\"ü\">" + longText + "</word><word id=1>x");
    EXPECT_EQ(table[3].text.size(), 999U); // cut to the field, then without the blank
    const auto bytes = recordsOfWords(table);
    EXPECT_EQ(bytes.size(), 4 * kWordRecordSize);
    EXPECT_EQ(bytes.substr(3 * kWordRecordSize, 4), std::string("\x03\0aa", 4));
    EXPECT_EQ(wordsFromRecords(bytes + "rest"), table);
    EXPECT_EQ(wordsFromRecords("\xff\xff" + std::string(2250, 'x')), WordTable{}); // id -1
    auto any = test::randomBytes(10 * kWordRecordSize, 1);
    for (std::size_t high = 1; high < any.size(); high += kWordRecordSize)
        any[high] = '\0'; // small ids
    EXPECT_EQ(wordsFromRecords(recordsOfWords(wordsFromRecords(any))), wordsFromRecords(any));
}

TEST(WordTable, FillsGapsAndBreaksLines)
{
    using Arguments = std::vector<std::string_view>;
    const std::tuple<const char*, Arguments, const char*> rows[] = {{"plain", {"unused"}, "plain"},
        {"Datei <?><br>fehlt", {"x.wml"}, "Datei x.wml\r\nfehlt"}, {"<?> bis <?>", {"1"}, "1 bis "},
        {"<?>-<?>", {"<?>", "b"}, "-b"}, {"<?>-<?>", {"a<?>", "b"}, "a<?>-b"},
        {"<?>", {"<br>"}, "<br>"},
        {"<?><?><?><?><?><?><?><?><?><?><?><?>",
            {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k"}, "abcdefghijjj"},
        {"<BR><? ><<?>", {"x"}, "<BR><? ><x"}};
    for (const auto& [text, arguments, filled] : rows)
        EXPECT_EQ(filledWord({{text, "", ""}}, 0, arguments), filled) << text;
    EXPECT_EQ(filledWord({{"a", "", ""}}, 1, {}) + filledWord({{"a", "", ""}}, -1, {}), "");
}

TEST(WordTable, HostileTextsAreReadInOnePass)
{
    for (const auto* part : {"<word", "<word>", "<word id=1", "<word id=1>", "<word id=1>x</word>",
             "</word", "<word id=", "<", "<word \"id=1\" ", "<word id=1 rem=\"="}) {
        std::string text;
        for (int times = 0; times < 100000; ++times)
            text += part;
        EXPECT_LT(test::millisecondsOf([&] { (void)wordsFromText(text); }), 2000) << part;
    }
}

} // namespace
} // namespace quillmere
