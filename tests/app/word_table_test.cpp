#include "app/word_table.h"

#include "document/windows1252.h"
#include "support/random_bytes.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillmere {
namespace {

std::string repeated(std::string_view text, std::size_t times)
{
    std::string result;
    for (std::size_t i = 0; i < times; ++i)
        result.append(text);
    return result;
}

TEST(WordTable, ReadsTheTextForm)
{
    const auto table
        = wordsFromText("<word id=\"2\" group=\"g\" rem=\"r\"> Zwei\r\nte Zeile </word>\n"
                        "<WORD rem=\"a\" id=1>Eins<word id=3>Drei</word>"
                        "<word id=2>Zwei</word");
    EXPECT_EQ(table, (WordTable{{}, {"Eins", "", "a"}, {"Zwei", "", ""}, {"Drei", "", ""}}));
}

TEST(WordTable, PassesOverIdsThatAreNone)
{
    for (const auto* id : {"-1", "32768", "99999999999", "x", "", "1x", "\"\""})
        EXPECT_TRUE(wordsFromText("<word id=" + std::string(id) + ">a</word>").empty()) << id;
    EXPECT_EQ(wordsFromText("<word id=32767>a</word>").size(), 32768U);
}

TEST(WordTable, BothFormsReadAlike)
{
    const auto table = wordsFromText(
        "<word id=3 group=\" g \" rem=\"ü\">" + repeated("a ", 600) + "</word><word id=1>x</word>");
    EXPECT_EQ(table[3].text.size(), 1000U - 1U); // cut to the field, then without the blank
    const auto bytes = recordsOfWords(table);
    EXPECT_EQ(bytes.size(), 4 * kWordRecordSize);
    EXPECT_EQ(bytes.substr(3 * kWordRecordSize, 5), std::string("\x03\0a a", 5));
    EXPECT_EQ(wordsFromRecords(bytes), table);
    EXPECT_EQ(wordsFromRecords(bytes + "rest"), table);
    EXPECT_EQ(wordsFromRecords("\xff\xff" + std::string(2250, 'x')), WordTable{}); // id -1
}

TEST(WordTable, FillsGapsAndBreaksLines)
{
    using Arguments = std::vector<std::string_view>;
    const Arguments letters{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k"};
    const struct {
        const char* text;
        Arguments arguments;
        const char* filled;
    } rows[] = {
        {"plain", {"unused"}, "plain"},
        {"Datei <?><br>fehlt", {"x.wml"}, "Datei x.wml\r\nfehlt"},
        {"<?> bis <?>", {"1", "30"}, "1 bis 30"},
        {"<?> bis <?>", {"1"}, "1 bis "},
        {"<?>-<?>", {"<?>", "b"}, "-b"},
        {"<?>-<?>", {"a<?>", "b"}, "a<?>-b"}, // a gap within an argument is text
        {"<?>", {"<br>"}, "<br>"},
        {"<?><?><?><?><?><?><?><?><?><?><?><?>", letters, "abcdefghijjj"},
        {"<BR><? ><<?>", {"x"}, "<BR><? ><x"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(filledWord({{row.text, "", ""}}, 0, row.arguments), row.filled);
    }
    EXPECT_EQ(filledWord({{"a", "", ""}}, 1, {}), "");
    EXPECT_EQ(filledWord({{"a", "", ""}}, -1, {}), "");
}

TEST(WordTable, HostileTextsAreReadInOnePass)
{
    constexpr std::size_t kTimes = 100000;
    for (const auto* part : {"<word", "<word>", "<word id=1", "<word id=1>", "<word id=1>x</word>",
             "</word", "<word id=", "<", "<word \"id=1\" ", "<word id=1 rem=\"="}) {
        const auto text = repeated(part, kTimes);
        EXPECT_LT(test::millisecondsOf([&] { (void)wordsFromText(text); }), 2000) << part;
    }
}

TEST(WordTable, AnyBytesGiveATableThatStaysTheSame)
{
    for (unsigned seed = 0; seed < 20; ++seed) {
        SCOPED_TRACE(seed);
        auto bytes = test::randomBytes(10 * kWordRecordSize, seed);
        for (std::size_t high = 1; high < bytes.size(); high += 2 * kWordRecordSize)
            bytes[high] = '\0'; // half of the ids small
        const auto table = wordsFromRecords(bytes);
        EXPECT_GT(table.size(), 0U);
        EXPECT_LE(table.size(), 32768U);
        const WordTable small(table.begin(),
            table.begin() + std::min(table.end() - table.begin(), std::ptrdiff_t{256}));
        EXPECT_EQ(wordsFromRecords(recordsOfWords(small)), small);
    }
}

} // namespace
} // namespace quillmere
