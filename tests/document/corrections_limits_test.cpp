#include "document/do_block.h"
#include "document/failure.h"
#include "document/format_around_select.h"
#include "document/format_nesting.h"
#include "document/limits.h"
#include "document/paragraphs.h"
#include "document/wml_layout.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quillmere {
namespace {

using Operation = void (*)(std::string&);

struct NamedOperation {
    const char* name;
    Operation apply;
};

const std::vector<NamedOperation> kOperations{
    {"RepairNesting", RepairNesting},
    {"RepairOnePair", [](std::string& text) { RepairOnePair(text, "<b>", "</b>"); }},
    {"RepairFormatNesting", RepairFormatNesting},
    {"RepairOverlap", [](std::string& text) { RepairOverlap(text, "<b>", "</b>", "<i>", "</i>"); }},
    {"FormatAroundSelect",
        [](std::string& text) { FormatAroundSelect(text, "<b>", "</b>", true); }},
    {"RepairParagraphs", RepairParagraphs},
    {"WrapInParagraph", [](std::string& text) { WrapInParagraph(text, "<b", "</b"); }},
    {"SplitAtParagraphs", [](std::string& text) { SplitAtParagraphs(text, "<b>", "</b>"); }},
    {"TakeDoBlock", [](std::string& text) { (void)TakeDoBlock(text); }},
    {"BreakWmlLines", BreakWmlLines},
    {"RestoreWhitespace",
        [](std::string& text) { RestoreWhitespace(text, std::string(text) + text); }},
};

std::string repeated(std::string_view piece, std::size_t size)
{
    std::string text;
    while (text.size() + piece.size() <= size)
        text.append(piece);
    return text;
}

std::string inRow(std::initializer_list<std::string_view> pieces, std::size_t size)
{
    std::size_t length = 0;
    for (const std::string_view piece : pieces)
        length += piece.size();
    std::string text;
    for (const std::string_view piece : pieces)
        text += repeated(piece, size / length * piece.size());
    return text;
}

TEST(Corrections, StayLinearOnHostileTexts)
{
    struct Shape {
        const char* name;
        std::string (*make)(std::size_t size);
    };
    const std::vector<Shape> shapes{
        {"<", [](std::size_t size) { return repeated("<", size); }},
        {"<wml <", [](std::size_t size) { return "<wml>" + repeated("<", size) + ">"; }},
        {"<b>", [](std::size_t size) { return repeated("<b>", size); }},
        {"</b>", [](std::size_t size) { return repeated("</b>", size); }},
        {"empty pairs", [](std::size_t size) { return repeated("<b></b>", size / 2); }},
        {"pairs in pairs",
            [](std::size_t size) {
                return inRow({"<b>", "</b>"}, size);
            }},
        {"overlaps", [](std::size_t size) { return repeated("<b><i></b></i>", size); }},
        {"overlaps in overlaps",
            [](std::size_t size) {
                return inRow({"<b>", "<i>", "</b>", "</i>"}, size);
            }},
        {"ends far away",
            [](std::size_t size) {
                return inRow({"<b><i></b>", "</i>"}, size / 2);
            }},
        {"across paragraphs",
            [](std::size_t size) { return "<b>" + repeated("<p>x</p>", size / 2) + "</b>"; }},
        {"paragraphs",
            [](std::size_t size) {
                return inRow({"<p>", "</p>"}, size);
            }},
        {"lists",
            [](std::size_t size) {
                return inRow({"<select>", "<b>", "</select>"}, size);
            }},
        {"formats of a list",
            [](std::size_t size) {
                return inRow({"<b>"}, size / 2) + "<select><b></select>"
                    + inRow({"</b>"}, size / 2);
            }},
        {"one gap", [](std::size_t size) { return "> " + repeated("<", size) + ">"; }},
    };
    for (const Shape& shape : shapes) {
        for (const NamedOperation& operation : kOperations) {
            SCOPED_TRACE(std::string(operation.name) + " on " + shape.name);
            std::string text = shape.make(30000);
            double milliseconds = 0;
            try {
                milliseconds = test::millisecondsOf([&] { operation.apply(text); });
            } catch (const Overflow&) { // the wrapping of thousands of elements
            }
            EXPECT_LT(milliseconds, 100); // a search of the rest for each tag takes longer
        }
    }
}

TEST(Corrections, RefuseWhatPositionsCannotTell)
{
    for (const NamedOperation& operation : kOperations) {
        SCOPED_TRACE(operation.name);
        const std::string before(kMaxTextLength + 1, 'x');
        std::string text = before;
        EXPECT_THROW(operation.apply(text), Overflow);
        EXPECT_EQ(text, before);
        text.pop_back();
        EXPECT_NO_THROW(operation.apply(text));
    }
}

TEST(Corrections, LeaveATextThatWouldGetTooLong)
{
    struct Row {
        const char* operation;
        std::string before;
    };
    const auto padded = [](const std::string& begin, const std::string& end) {
        return begin + std::string(kMaxTextLength - begin.size() - end.size(), 'x') + end;
    };
    const std::vector<Row> rows{
        {"RepairParagraphs", padded("<card>", "<p></p>")},
        {"WrapInParagraph", padded("<b>", "</b>")},
        {"SplitAtParagraphs", padded("<b>", "</p><p></b>")},
        {"BreakWmlLines", padded("<wml>", "</wml>")},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.operation);
        const auto operation = std::find_if(
            kOperations.begin(), kOperations.end(), [&row](const NamedOperation& each) {
                return each.name == std::string_view(row.operation);
            });
        std::string text = row.before;
        EXPECT_THROW(operation->apply(text), Overflow);
        EXPECT_EQ(text, row.before);
    }
    std::string deck = padded("<a><b>", "");
    const std::string before = deck;
    EXPECT_THROW(RestoreWhitespace(deck, "<a>\n<b>"), Overflow);
    EXPECT_EQ(deck, before);
}

} // namespace
} // namespace quillmere
