#include "document/design_to_wml.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/paragraphs.h"
#include "document/repair/radio_buttons.h"
#include "document/repair/wml_layout.h"
#include "document/text/failure.h"
#include "document/wml_to_design.h"
#include "support/row_file.h"
#include "support/small_deck.h"

#include <gtest/gtest.h>

#include <map>

// Examples of what the operations on texts are for. All their other behaviour is judged by slow
// versions; these rows hold what both could have wrong alike.

namespace quillmere {
namespace {

using Apply = void (*)(std::string&);

template <bool standard = false> void toWml(std::string& text)
{
    DesignToWml(text, test::SmallDeck(0, standard).session);
}
template <bool standard = false> void clean(std::string& text)
{
    CleanDesignHtml(text, OutputRules(standard));
}
void toDesign(std::string& text)
{
    WmlToDesign(text, 0, test::SmallDeck().session);
}

TEST(Operations, DoWhatTheyAreFor)
{
    const std::map<std::string, Apply> operations{{"WmlToDesign", toDesign}, {"DesignToWml", toWml},
        {"DesignToWml standard", toWml<true>}, {"CleanDesignHtml", clean},
        {"CleanDesignHtml standard", clean<true>}, {"RepairParagraphs", RepairParagraphs},
        {"BreakWmlLines", BreakWmlLines},
        {"InsertTemporaeryRadioButtons", InsertTemporaeryRadioButtons}};
    for (const auto& row : test::rowsOf("operations.txt")) {
        std::string text = row.at(1);
        operations.at(row.at(0))(text);
        EXPECT_EQ(text, row.at(2));
    }
}

TEST(Operations, LeaveTheTextWhereTheyFail)
{
    const std::pair<Apply, const char*> rows[]
        = {{toWml, R"(<P><!--do type label="b-->)"}, {toWml, R"(<P><TABLE title=b columns="2>)"},
            {toWml, R"(<P><A href="#x>)"}, {toWml, R"(<P><IMG src="a>)"},
            {toDesign, R"(<p><do type="a" label="b>)"}, {toDesign, R"(<p><table title="b>)"},
            {toDesign, "<p><do type label=>"}, {toDesign, R"(<p><img src="a" alt="b>)"},
            {clean, "<!--option-->a<!--option-->b<!--/option-->"}};
    for (const auto& [apply, before] : rows) {
        std::string text = before;
        EXPECT_THROW(apply(text), InvalidArgument);
        EXPECT_EQ(text, before);
    }
    const std::string x(32758, 'x');
    std::string grown = "<go>" + x.substr(6) + "<input>"; // shrinks too late
    EXPECT_THROW(toDesign(grown), Overflow);
    grown = "<input><go>" + x.substr(2);
    EXPECT_NO_THROW(toDesign(grown));
}

} // namespace
} // namespace quillmere
