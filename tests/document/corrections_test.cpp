#include "document/changes/deck_changes.h"
#include "document/design_to_wml.h"
#include "document/format_around_select.h"
#include "document/image_tags.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/do_block.h"
#include "document/repair/format_nesting.h"
#include "document/repair/paragraphs.h"
#include "document/repair/radio_buttons.h"
#include "document/repair/wml_layout.h"
#include "document/text/failure.h"
#include "document/text/limits.h"
#include "document/wml_to_design.h"
#include "literal/corrections.h"
#include "support/fake_platform.h"
#include "support/small_deck.h"
#include "support/stopwatch.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <tuple>

// Each correction of a text is held against a version that searches the whole text anew for each
// tag: on all short texts of a few tokens, and on random ones of many. Pieces such as "<" and "/b>"
// become tags when a tag between them goes.

namespace quillmere {
namespace {

using Apply = void (*)(std::string&);

struct Operation {
    const char* name;
    Apply fast;
    const char* grower = nullptr; // text that it makes longer; null: it makes none longer
    Apply slow = nullptr; // null: judged elsewhere
    std::vector<std::string_view> few{};
    std::size_t length = 0;
    std::vector<std::string_view> pieces{};
};

/// The operation with what it takes, so that it works on a text alone. What it gives back goes
/// behind the text; what stands behind a bar is the text as it was opened.
template <auto operation, int form> void on(std::string& text)
{
    if constexpr (form == 0) {
        operation(text, "<b>", "</b>");
    } else if constexpr (form == 1) {
        operation(text, "<a", "</a");
    } else if constexpr (form == 2) {
        operation(text, "<b>", "</b>", "<i>", "</i>");
    } else if constexpr (form == 3) {
        const bool isFound = operation(text, "<b>", "</b>", false);
        if (operation(text, "<b>", "</b>", true) != isFound) text += "differs";
    } else if constexpr (form == 4) {
        const std::string block = operation(text);
        text += block;
    } else {
        const std::size_t bar = text.find('|');
        const std::string pristine = bar == text.npos ? "<a>\n<b>" + text : text.substr(bar);
        text.resize(std::min(bar, text.size()));
        operation(text, pristine);
    }
}

void wrapLinks(std::string& text)
{
    WrapInParagraph(text, "<a", "</a");
}

void splitBold(std::string& text)
{
    SplitAtParagraphs(text, "<b>", "</b>");
}

void repairAroundSelect(std::string& text)
{
    static test::SmallDeck none; // its settings want no question
    RepairFormatAroundSelect(text, none.session);
}

void repairDeck(std::string& text)
{
    test::SmallDeck deck;
    deck.load(text);
    text = deck.written();
}

using Tokens = std::vector<std::string_view>;
const Tokens kFormats{"<b>", "</b>", "<i>", "</I>", "<u>", "</u>", "<big>", "</big>", "<small>",
    "</small>", "<strong>", "</strong>", "<b>", "</b>", "x", "<", "/i>"};
const Tokens kOptions{"<!--option-->", "<!--/option-->", "<!--option onpick=\"", "a\\b\"-->",
    "<!--OPTION onpick=c ", ">", "<input", "<inp", "ut>", "<!--/opt", "x"};
const Tokens kInSelect{
    "<b>", "</b>", "<select>", "</select>", "x", "<", "</", "b>", "/b>", "select>", "</u>", "<u>"};
const Tokens kInParagraph{"<a", "</a>", ">", "<p>", "</P>", "</p", "x", "<", "<a>", "<b>", "</b>",
    "<P a>", " ", "</", "b>", "/b>", "<b>", "/p>", "p", ".", "<card a>", "</card>"};
const Tokens kInDeck{"<wml>", "<p>", "</p>", "<br/>", "<I>", "</td>", "<small>", "x", "some text",
    "<b>", "</b>", "</p>", "<", "</u>", "<p a>", ">", " ", "\r\n", "<P>", "<>", "\t", "|", "<td>",
    "<u>", "<big>", "</big>", "</small>", "<strong>", "</strong>", "<i>", "</i>"};

const std::vector<Operation> kOperations{
    {"RepairOnePair", on<RepairOnePair, 0>, nullptr, on<literal::RepairOnePair, 0>,
        {"<b>", "</b>", "<", "/b>", "b>", "</"}, 6, kInSelect},
    {"RepairNesting", RepairNesting, nullptr, literal::RepairNesting,
        {"<i>", "</i>", "<u>", "</u>"}, 5, kFormats},
    {"RepairOverlap", on<RepairOverlap, 2>, nullptr, on<literal::RepairOverlap, 2>,
        {"<b>", "</b>", "<i>", "</I>"}, 8, kFormats},
    {"RepairFormatNesting", RepairFormatNesting, nullptr, literal::RepairFormatNesting,
        {"<b>", "</b>", "<big>", "</big>"}, 5, kFormats},
    {"FormatAroundSelect", on<FormatAroundSelect, 3>, nullptr, on<literal::FormatAroundSelect, 3>,
        {"<b>", "</b>", "<select>", "</select>"}, 8, kInSelect},
    {"RepairFormatAroundSelect", repairAroundSelect, nullptr, literal::RepairFormatAroundSelect,
        {"<b>", "</u>", "<select>", "</select>"}, 5, kInSelect},
    {"RepairParagraphs", RepairParagraphs, "<card>x<p></p>", literal::RepairParagraphs,
        {"<card>", "</card", "<p>", "</p", ">", "<", "+"}, 6, kInParagraph},
    {"WrapInParagraph", wrapLinks, "<a></a>", on<literal::WrapInParagraph, 1>,
        {"<a", "</A", ">", "<p>", "</p>", "x"}, 6, kInParagraph},
    {"SplitAtParagraphs", splitBold, "<b>x</p><p></b>", on<literal::SplitAtParagraphs, 0>,
        {"<b>", "</b>", "<p>", "</p", " ", "<"}, 6, kInParagraph},
    {"TakeDoBlock", on<TakeDoBlock, 4>, nullptr, on<literal::TakeDoBlock, 4>,
        {"<do", "</DO", ">", "</Card", "x", "<"}, 6, {"<do>", "</do>", "</card>", "x", "</do"}},
    {"BreakWmlLines", BreakWmlLines, "<wml></wml>", literal::BreakWmlLines,
        {"<wml>", "</p>", "<p>", "<i>", "</i>", "<"}, 6, kInDeck},
    {"RestoreWhitespace", on<RestoreWhitespace, 5>, "<a><b>", on<literal::RestoreWhitespace, 5>,
        {"<", ">", " ", "x", "|"}, 7, kInDeck},
    {"InsertTemporaeryRadioButtons", [](std::string& text) { InsertTemporaeryRadioButtons(text); },
        "<!--option--><!--/option-->", literal::InsertTemporaeryRadioButtons, kOptions, 4,
        kOptions},
    {"DeleteAllTemporaeryRadioButtons", DeleteAllTemporaeryRadioButtons, "",
        literal::DeleteAllTemporaeryRadioButtons, kOptions, 4, kOptions},
    {"CleanDesignHtml", [](std::string& text) { CleanDesignHtml(text, OutputRules()); }, "<p>"},
    {"WmlToDesign", [](std::string& text) { WmlToDesign(text, 0, test::SmallDeck(1).session); },
        "<go>"},
    {"DesignToWml", [](std::string& text) { DesignToWml(text, test::SmallDeck(1).session); },
        "<A href=>"},
    {"LoadDeck and WriteDeck", repairDeck, ""},
    {"imageTags", [](std::string& text) { (void)imageTags(text); }, ""},
};

TEST(Corrections, AgreeWithPlainSearches)
{
    for (const Operation& operation : kOperations) {
        if (operation.slow == nullptr) continue;
        const auto check = [&](const std::string& text) {
            std::string fast = text;
            std::string slow = text;
            operation.fast(fast);
            operation.slow(slow);
            ASSERT_EQ(fast, slow) << operation.name << " " << text;
        };
        test::forEachSequence(operation.few, operation.length, check);
        for (std::uint64_t seed = 0; seed < 5000 && !testing::Test::HasFatalFailure(); ++seed)
            check(test::randomSoup(seed, operation.pieces, 5 + seed % 40));
    }
}

std::string repeated(std::string_view piece, std::size_t length)
{
    std::string text;
    while (!piece.empty() && text.size() + piece.size() <= length)
        text += piece;
    return text;
}

// Thousands of pieces between a beginning and an end, and then as many of another piece.
struct Shape {
    const char *ahead, *first, *second, *behind;

    [[nodiscard]] std::string text(std::size_t length) const
    {
        return ahead + repeated(first, length / 2)
            + repeated(*second == '\0' ? first : second, length / 2) + behind;
    }
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

double timeOf(const Operation& operation, const std::string& text)
{
    const auto apply = [&] {
        std::string copy = text;
        try {
            operation.fast(copy);
        } catch (const RuntimeFailure&) { // an answer as well, as long as it comes in time
        }
    };
    return test::millisecondsOf(apply, 3);
}

// Four times the text takes about four times the time, and sixteen times where a search begins
// again for each tag. What is let through keeps short times out, and a busy machine gets some
// tries.
bool growsWithTheText(const Operation& operation, const Shape& shape)
{
    for (int tries = 0; tries < 6; ++tries) {
        const double allowed = 9 * timeOf(operation, shape.text(5000)) + 1.5;
        if (timeOf(operation, shape.text(20000)) < allowed) return true;
    }
    return false;
}

TEST(HostileTexts, TakeTimeThatGrowsWithThemNotWithTheirSquare)
{
    for (const Shape& shape : kShapes) {
        for (const Operation& operation : kOperations) {
            EXPECT_TRUE(growsWithTheText(operation, shape))
                << operation.name << " on " << shape.text(30);
        }
        const std::string text = shape.text(30000); // compared in windows: time has a bound
        EXPECT_LT(test::millisecondsOf([&] { (void)DeckChanges(text, "<b>" + text); }), 1000);
    }
}

TEST(HostileTexts, OfTooManyCharactersAreRefusedAndStay)
{
    for (const Operation& operation : kOperations) {
        const std::string grower = operation.grower == nullptr ? "</" : operation.grower;
        if (grower.empty()) continue; // works on texts of any length
        const auto inner = std::min(grower.find("</"), grower.size());
        for (const std::size_t length : {kMaxTextLength, kMaxTextLength + 1}) {
            std::string text = grower;
            text.insert(inner, length - grower.size(), 'x');
            const std::string before = text;
            if (operation.grower == nullptr && length == kMaxTextLength) {
                EXPECT_NO_THROW(operation.fast(text)) << operation.name;
                continue;
            }
            EXPECT_THROW(operation.fast(text), Overflow) << operation.name << length;
            EXPECT_EQ(text, before);
        }
    }
}

TEST(RepairFormatAroundSelect, AsksWhereTheSettingWantsIt)
{
    const std::string broken = "<b><select></select></b>";
    // answers: one for each question
    const std::tuple<const char*, std::vector<bool>, std::string, std::string> rows[]
        = {{"yes", {true}, broken, "<select></select>"}, {"YES", {false}, broken, broken},
            {"No", {}, broken, "<select></select>"}, {"", {}, broken, "<select></select>"},
            {"yes", {}, "<b>x</b><select></select>", "<b>x</b><select></select>"}};
    for (const auto& [setting, answers, before, after] : rows) {
        test::SmallDeck none;
        test::ScriptedPrompter person(answers);
        none.core.settings.WriteSetting("ShowSelectTagCorrectMessage", setting);
        auto session = none.sessionWith(person);
        std::string text = before;
        RepairFormatAroundSelect(text, session);
        EXPECT_EQ(text, after) << setting;
        EXPECT_EQ(person.log, std::vector<std::string>(answers.size(), "note 5"));
    }
}

} // namespace
} // namespace quillmere
