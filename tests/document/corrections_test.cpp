#include "document/do_block.h"
#include "document/format_around_select.h"
#include "document/format_nesting.h"
#include "document/paragraphs.h"
#include "document/radio_buttons.h"
#include "document/wml_layout.h"
#include "literal/corrections.h"
#include "literal/radio_buttons.h"
#include "support/fake_platform.h"
#include "support/small_deck.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

// Each correction of a text is held against a version that searches the whole text anew for each
// tag: on all short texts of a few tokens, and on random ones of many. Pieces such as "<" and "/b>"
// become tags when a tag between them goes.

namespace quillmere {
namespace {

using Apply = void (*)(std::string&);

struct Judged {
    const char* name;
    Apply fast;
    Apply slow;
    std::vector<std::string_view> few;
    std::size_t length;
    std::vector<std::string_view> pieces;
};

/// In front of the text what the operation gives back.
template <auto operation> void withResult(std::string& text)
{
    const std::string block = operation(text);
    text = block + "--" + text;
}

template <auto operation> void bothQuestions(std::string& text)
{
    const bool found = operation(text, "<b>", "</b>", false);
    const bool taken = operation(text, "<b>", "</b>", true);
    text.append(found ? "F" : "-").append(taken ? "T" : "-");
}

template <auto operation> void onBold(std::string& text)
{
    operation(text, "<b>", "</b>");
}

void wrapLinks(std::string& text)
{
    WrapInParagraph(text, "<a", "</a");
}

void splitBold(std::string& text)
{
    SplitAtParagraphs(text, "<b>", "</b>");
}

template <auto operation> void onLinks(std::string& text)
{
    operation(text, "<a", "</a");
}

template <auto operation> void onBoldAndItalic(std::string& text)
{
    operation(text, "<b>", "</b>", "<i>", "</i>");
}

/// What stands behind the first bar is the text as it was opened.
template <auto operation> void behindTheBar(std::string& text)
{
    const std::size_t bar = std::min(text.find('|'), text.size());
    const std::string pristine = text.substr(bar);
    text.resize(bar);
    operation(text, pristine);
}

void repairAroundSelect(std::string& text)
{
    static test::SmallDeck none; // its settings want no question
    RepairFormatAroundSelect(text, none.session);
}

const std::vector<std::string_view> kFormats{"<b>", "</b>", "<i>", "</I>", "<u>", "</u>", "<big>",
    "</big>", "<small>", "</small>", "<strong>", "</strong>", "<b>", "</b>", "x", "<", "/i>"};
const std::vector<std::string_view> kOptions{"<!--option-->", "<!--/option-->",
    "<!--option onpick=\"", "a\\b\"-->", "<!--OPTION onpick=c ", ">", "<input", "<inp", "ut>",
    "<!--/opt", "x"};

const std::vector<Judged> kCorrections{
    {"RepairOnePair", onBold<RepairOnePair>, onBold<literal::RepairOnePair>,
        {"<b>", "</b>", "<", "/b>", "b>", "</"}, 6,
        {"<b>", "</b>", "<i>", "</i>", "x", "<", "</", "b>", "/b>", "i>"}},
    {"RepairNesting", RepairNesting, literal::RepairNesting, {"<i>", "</i>", "<u>", "</u>"}, 5,
        kFormats},
    {"RepairOverlap", onBoldAndItalic<RepairOverlap>, onBoldAndItalic<literal::RepairOverlap>,
        {"<b>", "</b>", "<i>", "</I>"}, 8, {"<b>", "</b>", "<i>", "</i>", "x", "<", "</", "b>"}},
    {"RepairFormatNesting", RepairFormatNesting, literal::RepairFormatNesting,
        {"<b>", "</b>", "<big>", "</big>"}, 5, kFormats},
    {"FormatAroundSelect", bothQuestions<FormatAroundSelect>,
        bothQuestions<literal::FormatAroundSelect>, {"<b>", "</b>", "<select>", "</select>"}, 8,
        {"<b>", "</b>", "<select>", "</select>", "x", "<", "</", "b>", "/b>", "select>"}},
    {"RepairFormatAroundSelect", repairAroundSelect, literal::RepairFormatAroundSelect,
        {"<b>", "</u>", "<select>", "</select>"}, 5,
        {"<b>", "</b>", "<i>", "</i>", "<small>", "</small>", "<select>", "</select>", "<select>",
            "</select>", "x", "<"}},
    {"RepairParagraphs", RepairParagraphs, literal::RepairParagraphs,
        {"<card>", "</card", "<p>", "</p", ">", "<", "+"}, 6,
        {"</P>", "<p>", "</p", "<", "</", "/p>", "p", "x", ".", "<card a>", "</card>"}},
    {"WrapInParagraph", wrapLinks, onLinks<literal::WrapInParagraph>,
        {"<a", "</A", ">", "<p>", "</p>", "x"}, 6,
        {"<a", "</a>", ">", "<p>", "</P>", "x", "<", "</p", "<a>"}},
    {"SplitAtParagraphs", splitBold, onBold<literal::SplitAtParagraphs>,
        {"<b>", "</b>", "<p>", "</p", " ", "<"}, 6,
        {"<b>", "</b>", "<p>", "</p>", "<P a>", "x", " ", "<", "</", "b>", "/b>", "<b>"}},
    {"TakeDoBlock", withResult<TakeDoBlock>, withResult<literal::TakeDoBlock>,
        {"<do", "</DO", ">", "</Card", "x", "<"}, 6, {"<do>", "</do>", "</card>", "x", "</do"}},
    {"BreakWmlLines", BreakWmlLines, literal::BreakWmlLines,
        {"<wml>", "</p>", "<p>", "<i>", "</i>", "<"}, 6,
        {"<wml>", "<p>", "</p>", "<br/>", "<I>", "</td>", "<small>", "x", "some longer text", "<b>",
            "</b>", "</p>", "</p>", "<", "</u>"}},
    {"RestoreWhitespace", behindTheBar<RestoreWhitespace>, behindTheBar<literal::RestoreWhitespace>,
        {"<", ">", " ", "x", "|"}, 7,
        {"<p>", "</p>", "<p a>", "<", ">", " ", "\r\n", "x", "<P>", "<>", "<card>", "\t", "|"}},
    {"InsertTemporaeryRadioButtons", InsertTemporaeryRadioButtons,
        literal::InsertTemporaeryRadioButtons, kOptions, 4, kOptions},
    {"DeleteAllTemporaeryRadioButtons", DeleteAllTemporaeryRadioButtons,
        literal::DeleteAllTemporaeryRadioButtons, kOptions, 4, kOptions},
};

void expectAgreement(const Judged& correction, const std::string& text)
{
    std::string fast = text;
    std::string slow = text;
    correction.fast(fast);
    correction.slow(slow);
    ASSERT_EQ(fast, slow) << text;
}

TEST(Corrections, AgreeWithPlainSearches)
{
    for (const Judged& correction : kCorrections) {
        SCOPED_TRACE(correction.name);
        const auto check = [&](const std::string& text) { expectAgreement(correction, text); };
        test::forEachSequence(correction.few, correction.length, check);
        for (std::uint64_t seed = 0; seed < 4000 && !HasFatalFailure(); ++seed)
            check(test::randomSoup(seed, correction.pieces, 5 + seed % 40));
    }
}

TEST(RepairFormatAroundSelect, AsksWhereTheSettingWantsIt)
{
    const struct {
        const char* setting;
        std::vector<bool> answers; // one for each question
        const char* before;
        const char* after;
    } rows[] = {
        {"yes", {true}, "<b><select></select></b>", "<select></select>"},
        {"YES", {false}, "<b><select></select></b>", "<b><select></select></b>"},
        {"No", {}, "<b><select></select></b>", "<select></select>"},
        {"", {}, "<b><select></select></b>", "<select></select>"},
        {"yes", {}, "<b>x</b><select></select>", "<b>x</b><select></select>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.setting);
        test::SmallDeck none;
        test::ScriptedPrompter person(row.answers);
        none.core.settings.WriteSetting("ShowSelectTagCorrectMessage", row.setting);
        DocumentSession session{none.files, none.copies, person, none.core.settings,
            none.core.words, OutputRules(), {}};
        std::string text = row.before;
        RepairFormatAroundSelect(text, session);
        EXPECT_EQ(text, row.after);
        EXPECT_EQ(person.log, std::vector<std::string>(row.answers.size(), "note 5"));
    }
}

} // namespace
} // namespace quillmere
