#include "document/tag_attributes.h"

#include "document/failure.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

constexpr std::string_view kKey = R"(alt=")";
using Reading = std::optional<TextRange> (AttributeReader::*)(const Tag&);

/// The value as it is read out of `text`, which is one tag; "-" for none, "!" for the failure.
std::string read(std::string_view text, Reading reading)
{
    AttributeReader reader(text, kKey);
    try {
        const auto value = (reader.*reading)({0, text.size()});
        return value ? std::string(value->in(text)) : "-";
    } catch (const InvalidArgument&) {
        return "!";
    }
}

TEST(AttributeReader, ReadsQuotedAndBareValues)
{
    struct Row {
        std::string tag;
        std::string quoted;
        std::string closed;
        std::string bare;
        std::string behindName;
    };
    const std::vector<Row> rows{
        {"<a>", "-", "-", "-", "-"},
        {R"(<a alt="x y" b>)", "x y", "x y", "x y", "x y"},
        {R"(<a alt="">)", "", "", "", ""},
        {R"(<a alt="x>)", "!", "-", "!", "!"},
        {"<a alt=x y>", "-", "-", "x", "!"},
        {"<a alt=x/>", "-", "-", "x/", "!"},
        {"<a alt=>", "-", "-", "", "!"},
        {R"(<a alt='x' b="y">)", "-", "-", "'x'", "x' b="},
        {R"(<a alt=x salt="y">)", "y", "y", "y", " salt="},
        {R"(<a ALT="x">)", "-", "-", "-", "-"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_EQ(read(row.tag, &AttributeReader::quoted), row.quoted);
        EXPECT_EQ(read(row.tag, &AttributeReader::quotedAndClosed), row.closed);
        EXPECT_EQ(read(row.tag, &AttributeReader::quotedOrBare), row.bare);
        EXPECT_EQ(read(row.tag, &AttributeReader::behindName), row.behindName);
    }
}

TEST(AttributeReader, AgreesWithAFreshOneOnTagsWithOneEnd)
{
    const std::string text = R"(<a alt="1" <a b="2" <a alt="3"> alt="4"<a><a alt="5">)";
    AttributeReader kept(text, kKey);
    TagScanner tags(text);
    while (const auto tag = tags.next()) {
        const auto value = kept.quoted(*tag);
        const auto fresh = AttributeReader(text, kKey).quoted(*tag);
        const TextRange none;
        EXPECT_EQ(value.value_or(none).begin, fresh.value_or(none).begin) << tag->begin;
        EXPECT_EQ(value.value_or(none).end, fresh.value_or(none).end) << tag->begin;
        tags.resumeAt(tag->begin + 1);
    }
}

TEST(WholeNumber, TakesDigitsOnly)
{
    EXPECT_EQ(wholeNumber(" 20 "), 20);
    EXPECT_EQ(wholeNumber("-2147483648"), -2147483648LL);
    EXPECT_THROW((void)wholeNumber("2147483648"), Overflow);
    for (const auto* const text : {"", " ", "50%", "x", "1 2", "0x10"})
        EXPECT_THROW((void)wholeNumber(text), TypeMismatch) << text;
}

} // namespace
} // namespace quillmere
