#include "document/clean_design_html.h"
#include "document/deck_changes.h"
#include "document/design_to_wml.h"
#include "document/do_block.h"
#include "document/failure.h"
#include "document/format_around_select.h"
#include "document/format_nesting.h"
#include "document/image_tags.h"
#include "document/limits.h"
#include "document/paragraphs.h"
#include "document/radio_buttons.h"
#include "document/wml_layout.h"
#include "document/wml_to_design.h"
#include "support/small_deck.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

struct Operation {
    const char* name;
    void (*apply)(std::string&);
    const char* grower = nullptr; // grows a text by its end or beginning; null: none does
};

void repair(std::string& text)
{
    test::SmallDeck deck;
    deck.load(text);
    text = deck.written();
}

const std::vector<Operation> kOperations{
    {"CleanDesignHtml", [](std::string& text) { CleanDesignHtml(text, OutputRules()); }, "<p>"},
    {"WmlToDesign", [](std::string& text) { WmlToDesign(text, 0, test::SmallDeck(1).session); },
        "<go>"},
    {"DesignToWml", [](std::string& text) { DesignToWml(text, test::SmallDeck(1).session); },
        "<A href=>"},
    {"RepairNesting", RepairNesting},
    {"RepairOnePair", [](std::string& text) { RepairOnePair(text, "<b>", "</b>"); }},
    {"RepairFormatNesting", RepairFormatNesting},
    {"RepairOverlap", [](std::string& text) { RepairOverlap(text, "<b>", "</b>", "<i>", "</i>"); }},
    {"FormatAroundSelect",
        [](std::string& text) { FormatAroundSelect(text, "<b>", "</b>", true); }},
    {"RepairParagraphs", RepairParagraphs, "<card>x<p></p>"},
    {"WrapInParagraph", [](std::string& text) { WrapInParagraph(text, "<b", "</b"); }, "<b></b>"},
    {"SplitAtParagraphs", [](std::string& text) { SplitAtParagraphs(text, "<b>", "</b>"); },
        "<b>x</p><p></b>"},
    {"TakeDoBlock", [](std::string& text) { (void)TakeDoBlock(text); }},
    {"BreakWmlLines", BreakWmlLines, "<wml></wml>"},
    {"RestoreWhitespace", [](std::string& text) { RestoreWhitespace(text, "<a>\n<b>" + text); },
        "<a><b>"},
    {"InsertTemporaeryRadioButtons", InsertTemporaeryRadioButtons, "<!--option--><!--/option-->"},
};

std::string repeated(std::string_view piece, std::size_t length)
{
    std::string text;
    while (text.size() + piece.size() <= length)
        text += piece;
    return text;
}

// Thousands of pieces between a beginning and an end, and then as many of another piece.
struct Shape {
    const char *ahead, *first, *second, *behind;
};

const Shape kShapes[] = {{"", "<", "", ""}, {"<wml>", "<", "", ">"}, {"> ", "<", "", ">"},
    {"", ">", "", ""}, {"", " <", "", ""}, {"", "<p", "", ""}, {"", "<p>", "</p>", ""},
    {"<b>", "<p>x</p>", "", "</b>"}, {"", "<p align=l<p>x", "", ""}, {"", "<p>&nbsp", "", ""},
    {"", "x</p>", "", ""}, {"", "<!--/card--><p>x", "", ""}, {"", "<b></b>", "", ""},
    {"", "<b>", "</b>", ""}, {"", "<b><i>x</b></i>", "", ""}, {"", "<b><i></b>", "</i>", ""},
    {"", "<b>", "<i>", "</b></i>"}, {"<select>", "<b>", "</b>", "</select>"},
    {"", "<select>", "<b>", "</select>"}, {"", "<a", "", ">"}, {"", "<a", "x", "href=\"x>"},
    {"", "<img ", "x", "src=\"x\">"}, {"", "<img src=\"a.gif\" ", "", ">"}, {"", "<img", "", ">"},
    {"", "<do type", "", ">"}, {"", "<!--do type", "", ">"}, {"", "<table ", "", ">"},
    {"<table>", "</tr>x<tr>", "", "</table>"}, {"", "<table><p>x</p>", "", ""},
    {"", "<br/>", "", ""}, {"", "<card>", "", ""}, {"", "</card>", "", "</card <card"},
    {"", "<card><do></do", "", ""}, {"", "<!--option-->x", "", "<!--/option--><!--/select-->"},
    {"", "x<!--/option-->", "", ""}, {"<!--option-->", "<inp<input>ut>", "", "<!--/option-->"},
    {"<!--option-->", "<!--option-->x<input ", "", "<!--/option-->"}, {"", "<!--", "", ""},
    {"", "<a b='>", "", ""}, {"", "&a", "", ""}};

std::string shaped(const Shape& shape, std::size_t length)
{
    const std::size_t each = *shape.second == '\0' ? length : length / 2;
    return shape.ahead + repeated(shape.first, each)
        + (*shape.second == '\0' ? "" : repeated(shape.second, each)) + shape.behind;
}

double timeOf(const Operation& operation, const std::string& text)
{
    return test::millisecondsOf(
        [&] {
            std::string copy = text;
            try {
                operation.apply(copy);
            } catch (const RuntimeFailure&) { // an answer as well, as long as it comes in time
            }
        },
        3);
}

// Four times the text takes about four times the time, and sixteen times where a search begins
// again for each tag. What is let through keeps short times out, and a busy machine gets some tries.
bool growsWithTheText(const Operation& operation, const Shape& shape)
{
    for (int tries = 0; tries < 6; ++tries) {
        const double allowed = 9 * timeOf(operation, shaped(shape, 5000)) + 1.5;
        if (timeOf(operation, shaped(shape, 20000)) < allowed) return true;
    }
    return false;
}

TEST(HostileTexts, TakeTimeThatGrowsWithThemNotWithTheirSquare)
{
    auto operations = kOperations;
    operations.push_back({"LoadDeck and WriteDeck", repair});
    operations.push_back({"DeleteAllTemporaeryRadioButtons", DeleteAllTemporaeryRadioButtons});
    operations.push_back({"imageTags", [](std::string& text) { (void)imageTags(text); }});
    for (const Operation& operation : operations) {
        for (const Shape& shape : kShapes)
            EXPECT_TRUE(growsWithTheText(operation, shape))
                << operation.name << " on " << shaped(shape, 30);
    }
}

// What changed is looked for in windows, so that only long texts grow with their length.
TEST(HostileTexts, AreComparedInTime)
{
    for (const Shape& shape : kShapes) {
        const std::string text = shaped(shape, 30000);
        EXPECT_LT(test::millisecondsOf([&] { (void)DeckChanges(text, "<b>" + text); }), 1000);
    }
}

TEST(HostileTexts, OfTooManyCharactersAreRefusedAndStay)
{
    for (const Operation& operation : kOperations) {
        SCOPED_TRACE(operation.name);
        std::string text(kMaxTextLength + 1, 'x');
        const std::string before = text;
        EXPECT_THROW(operation.apply(text), Overflow);
        EXPECT_EQ(text, before);
        if (operation.grower == nullptr) {
            text.pop_back();
            EXPECT_NO_THROW(operation.apply(text));
            continue;
        }
        text = operation.grower;
        const auto blank = std::min(text.find("</"), text.size()); // into the element or behind it
        text.insert(blank, kMaxTextLength - text.size(), 'x');
        const std::string full = text;
        EXPECT_THROW(operation.apply(text), Overflow);
        EXPECT_EQ(text, full);
    }
}

} // namespace
} // namespace quillmere
