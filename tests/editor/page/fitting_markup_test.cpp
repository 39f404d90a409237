#include "editor/page/fitting_markup.h"
#include "editor/page/page_edits.h"
#include "editor/page/page_places.h"
#include "editor/page/pasted_elements.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quillmere {
namespace {

const OutputRules kRules(true);

/// What comes of a card with this content when a clip is put in at the bar, with the caret.
std::string pasted(std::string content, std::string_view clip)
{
    const std::string frame = "<!--card id=\"a\"--><HTML><BODY>";
    const auto bar = content.find('|');
    content.erase(bar, 1);
    const auto page = readSurfacePage(frame + content + "</BODY></HTML>", kRules);
    const auto place = placeAt(page, frame.size() + bar);
    const auto edit = pasteMarkup(page, place, place, clip);
    auto text = edited(page.text, edit, kRules).insert(edit.caret, "|");
    return text.substr(frame.size(), text.find("</BODY>") - frame.size());
}

constexpr std::string_view kField = "<!--#input &lt;input/&gt;-->";
constexpr std::string_view kEvent = "<!--#onevent &lt;onevent/&gt;-->";
constexpr std::string_view kTimer = "<!--#timer &lt;timer/&gt;-->";
const std::string kList = "<!--select--><!--option-->x<!--/option--><!--/select-->";

struct FittingRow {
    std::string name;
    std::string content;
    std::string clip;
    std::string wanted;
};

TEST(FittingMarkup, GoesWhereWmlAllowsIt)
{
    const std::string field(kField);
    const std::string event(kEvent);
    const std::string timer(kTimer);
    const FittingRow rows[] = {
        {"a link in a link is text", "<p><a href=\"#x\">on|e</a></p>",
            "a <a href=\"#y\">b<b>c</b></a>", "<p><a href=\"#x\">ona bc|e</a></p>"},
        {"so is an anchor, without its task", "<p><a href=\"#x\">on|e</a></p>",
            "<!--anchor-->t<!--go href=\"#y\"--><!--#setvar s--><!--/go--><!--/anchor-->",
            "<p><a href=\"#x\">ont|e</a></p>"},
        {"no second task comes into an anchor",
            "<p><!--anchor-->o|n<!--go href=\"#x\"/--><!--/anchor--></p>",
            "<!--anchor-->t<!--go href=\"#y\"/--><!--/anchor-->",
            "<p><!--anchor-->ot|n<!--go href=\"#x\"/--><!--/anchor--></p>"},
        {"an entry holds text alone",
            "<p><!--select--><!--option-->o|n<!--/option--><!--/select-->",
            "a<br/><b>b</b>" + field + "c",
            "<p><!--select--><!--option-->oa bc|n<!--/option--><!--/select-->" + field},
        {"a list in a list gives its entries",
            "<p><!--select--><!--option-->on|<!--/option--><!--/select--></p>", kList,
            "<p><!--select--><!--option-->on|<!--/option--><!--option-->x<!--/option-->"
            "<!--/select--></p>"},
        {"a field goes behind the table", "<p><table><tr><td>o|n</td></tr></table>e</p>",
            "a" + field + "b", "<p><table><tr><td>oab|n</td></tr></table>" + field + "e</p>"},
        {"a table behind that it was put in", "<p><table><tr><td>|n</td></tr></table></p>",
            "<table><tr><td>x</td></tr></table>",
            "<p><table><tr><td>|n</td></tr></table><table><tr><td>x</td></tr></table></p>"},
        {"formats end ahead of a list", "<p><i><b class=\"c\">o|n</b></i></p>", "a" + kList + "b",
            "<p><i><b class=\"c\">oa</b></i>" + kList + "<i><b class=\"c\">b|n</b></i></p>"},
        {"none is left without text", "<p><b>on|</b></p>", field, "<p><b>on</b>" + field + "|</p>"},
        {"nor ahead of it", "<p><b>|on</b></p>", field, "<p>" + field + "|<b>on</b></p>"},
        {"events and a timer go to the head", event + "<p>o|n</p>", "a" + timer + event + "b",
            event + event + timer + "<p>oab|n</p>"},
        {"of two timers the first one stays", timer + "<p>o|n</p>", "a" + timer,
            timer + "<p>oa|n</p>"},
        {"an event stays in its own entry", "<p>o|n</p>",
            "<!--select--><!--option-->x" + event + "<!--/option--><!--/select-->",
            "<p>o<!--select--><!--option-->x" + event + "|<!--/option--><!--/select-->n</p>"},
        {"behind it formats begin again", "<p><b>on|e</b></p>",
            "<!--select--><!--option-->x" + field + "<!--/option--><!--/select-->",
            "<p><b>on</b>" + kList + field + "|<b>e</b></p>"},
        {"cells without a table give their text", "<p>o|n</p>", "<tr><td>a</td><td>b</td></tr>",
            "<p>oa b|n</p>"},
        {"halves of pairs are left out", "<p>o|n</p>", "a</b></a><i>b", "<p>oab|n</p>"},
        {"a paragraph is a line", "<p>o|n</p>", "<p>a</p><p>b</p>", "<p>oa<br/>b|n</p>"},
        {"what fits comes as it is", "<p>o|n</p>",
            "<!--fieldset--><A HREF=\"x\">a</A><!--/fieldset-->",
            "<p>o<!--fieldset--><A HREF=\"x\">a</A><!--/fieldset-->|n</p>"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(pasted(row.content, row.clip), row.wanted) << row.name;
}

TEST(FittingMarkup, BringsATimerInPlaceOfOneThatGoes)
{
    const auto text = "<!--card--><BODY>" + std::string(kTimer) + "<p>one</p></BODY>";
    const auto page = readSurfacePage(text, kRules);
    const PagePlace end{page.blocks.size() - 1, 3};
    const auto edit = pasteMarkup(page, {0, 0}, end, "<!--#timer new--><p>x</p>");
    EXPECT_EQ(edited(text, edit, kRules), "<!--card--><BODY><!--#timer new--><p>x</p></BODY>");
}

TEST(FittingMarkup, IsAskedByElementsFromTheClipboardToo)
{
    const auto paste = pasteElement("<!--card--><p><b>one</b></p>", 18,
        "<!--option-->x<!--/option-->", ElementKind::Option, kRules);
    EXPECT_EQ(paste.design, "<!--card--><p>" + kList + "<b><br/>one</b></p>");
}

TEST(FittingMarkup, TakesHostileMarkupInTime)
{
    const auto page = readSurfacePage("<p><a href=\"#x\">one</a></p>", kRules);
    std::string nested, ends, anchors;
    for (int i = 0; i < 2'000; ++i) {
        nested += "<b><i>";
        ends += "</u>";
        anchors += "<!--anchor--><a>";
    }
    const auto start = std::chrono::steady_clock::now();
    for (const auto& clip : {nested + ends, anchors + ends + nested})
        EXPECT_EQ(edited(page.text, pasteMarkup(page, {0, 1}, {0, 1}, clip + "x"), kRules),
            "<p><a href=\"#x\">oxne</a></p>");
    for (int i = 0; i < 2'000; ++i)
        nested += "<!--#input x-->";
    for (int i = 0; i < 2'000; ++i)
        nested += "</i></b>";
    EXPECT_LT(
        edited(page.text, pasteMarkup(page, {0, 3}, {0, 3}, nested), kRules).size(), 100'000U);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

} // namespace
} // namespace quillmere
