#include "app/resource_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillmere {
namespace {

TEST(ResourceText, AttributesReadAlikeWithQuotesAndWithout)
{
    const struct {
        const char *tag, *name, *value;
    } rows[] = {
        {R"(<word id="5" rem="a b">)", "id=", "5"},
        {R"(<word id=5 rem="a b">)", "id=", "5"},
        {R"(<WORD ID = 5 Id= "6">)", "id=", "6"},
        {"<word id=5>", "id=", "5"},
        {R"(<word id="5" rem="a=b > c">)", "rem=", "a=b > c"},
        {R"(<word rem=a b id=7>)", "rem=", "a"},
        {"<word rem= b>", "rem=", ""}, // a blank ends the value
        {R"(<word rem="">)", "rem=", ""},
        {R"(<word formid="a" id="b">)", "id=", "a"}, // the first place, also within a name
        {R"(<word rem="a b>)", "rem=", "a b"}, // no second quote
        {R"(<word rem="a b id=5>)", "rem=", "a b id"},
        {"<word rem=a", "rem=", "a"},
        {"<word rem=", "rem=", ""},
        {"<word>", "rem=", ""},
        {"", "rem=", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(resourceAttribute(row.tag, row.name), row.value) << row.tag;
}

TEST(ResourceText, NumbersHaveSixteenBits)
{
    EXPECT_EQ(shortNumber(" 32767 "), 32767);
    EXPECT_EQ(shortNumber("-32768"), -32768);
    for (const auto* text :
        {"32768", "-32769", "99999999999999999999", "", " ", "1a", "a", "1 2", "0x1", "1.5", "--1"})
        EXPECT_EQ(shortNumber(text), std::nullopt) << text;
}

std::vector<std::string> entriesOf(std::string_view text)
{
    std::vector<std::string> found;
    ResourceEntries entries(text, "<word", "</word");
    while (const auto entry = entries.next())
        found.push_back(std::string(entry->tag) + "|" + std::string(entry->content));
    return found;
}

TEST(ResourceText, EntriesEndAtTheirEndTheNextOneOrTheText)
{
    using Found = std::vector<std::string>;
    EXPECT_EQ(entriesOf("x<word a>1</word>y<WORD b>2</Word>"), (Found{"<word a>|1", "<WORD b>|2"}));
    EXPECT_EQ(entriesOf("<word a>1<word b>2</word"), (Found{"<word a>|1", "<word b>|2"}));
    EXPECT_EQ(entriesOf("<word a>1</word</word><word b>2"), (Found{"<word a>|1", "<word b>|2"}));
    EXPECT_EQ(entriesOf("<word a <word b>2"), Found{"<word b>|2"}); // its ">" is another's
    EXPECT_EQ(entriesOf("<word a</word>1"), Found{});
    EXPECT_EQ(entriesOf("<word></word>"), Found{"<word>|"});
    EXPECT_EQ(entriesOf("</word>"), Found{});
}

} // namespace
} // namespace quillmere
