#include "document/design_to_wml.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/paragraphs.h"
#include "document/repair/radio_buttons.h"
#include "document/repair/wml_layout.h"
#include "document/text/failure.h"
#include "document/wml_to_design.h"
#include "support/small_deck.h"

#include <gtest/gtest.h>

#include <tuple>

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
    const std::tuple<Apply, const char*, const char*> rows[] = {
        {toDesign, R"(<p mode="nowrap" align="center"><p id="leftside" align="right">)",
            R"(<p align="center"><p align="left">)"},
        {toDesign, R"(<DO Type="X" label="Ab" Name="Y"><GO href="#a"></GO></DO><do type="prev">)",
            R"(<!--do type="x" label="Ab" name="y"--><!--GO href="#a"--><!--/go--><!--/do-->)"
            R"(<do type="prev">)"},
        {toDesign, R"(<select name="x"><option value="A" onpick="#a">T</OPTION></select>)",
            R"(<!--select--><!--option value="A" onpick="#a"-->T<!--/option--><!--/select-->)"},
        {toDesign, R"(a<input name="x"/>b<!-- c -->d<td align="right">e</td><prev/>)",
            "abde</td><p>"},
        {toDesign, R"(<table title="Ab" Columns="2"><A Title="t" HREF="#X">a</A><a href="#x>)",
            R"(<table title="Ab" columns="2" border="1"><a href="#X">a</a><a href="#x>)"},
        {toDesign, R"(<wml><card  id="x"><card title="a" id="x"><CARD Id="x"></card></wml>)",
            R"(<!--CARD Id="x"--><!--/card-->)"},
        {toWml, "<TABLE align=center columns=2 title=Ab border=1><TABLE border=1><EM>x</EM><HR>",
            R"(<table title="Ab" align="center" columns="2"><TABLE border=1><i>x</i>)"},
        {toWml, R"(<A href=#X class=y>a</A ><!--do type="accept" label="Ab" Name="C"--><!--/do-->)",
            R"(<a href="#X">a</a><do type="accept" label="Ab" name="c"></do>)"},
        {toWml, R"(<!--card id="A" Title="b"--><!--go href="#X"/--><!--/CARD--><IMG src="a.bmp">)",
            R"(<card id="A" Title="b"><go href="#X"/></card></img>)"},
        {toWml<true>, R"(<TABLE align=center COLUMNS=2><TABLE TITLE="Ab"><TABLE border=1>)",
            R"(<table align="center" columns="2"><table title="Ab"><table>)"},
        {clean, "<BODY>a<!--do--><!--go--><!--/do-->",
            "<BODY><p>a</p><!--do--><!--go--><!--/do--><!--/card-->"},
        {clean, "<P>x</P><!--option value=\"1\"-->a<INPUT type=radio>b<P>y</P>",
            "<P>x<!--select--><!--option value=\"1\"-->a<INPUT type=radio>b"
            "<!--/option--><!--/select-->y</p><!--/card-->"},
        {clean, "<P>x<TABLE><TR><TD><P>a</P></TD></TR> <TR></TR></TABLE></P>",
            "<P>x<TABLE><TR><TD>a<br/></TD></TR><TR></TR></TABLE></p><!--/card-->"},
        {clean, "<P>x</P> \r\n <P align=\"left\">a  b </P><P>&nbsp;</P>",
            "<P>x</P><P align=\"left\">a  b</p><!--/card-->"},
        {clean, "<P>M\xFCller, Stra\xDF\x65 caf\xE9 \x80\x7F.</P>",
            "<P>Mueller, Strasse caf    .</p><!--/card-->"},
        {clean<true>, "<P>M\xFCller, Stra\xDF\x65 caf\xE9 \x80\x7F.</P>",
            "<P>M&#252;ller, Stra&#223;e caf&#233; &#8364;&#127;.</p><!--/card-->"},
        {RepairParagraphs, "<card id=\"a\">x<p>y</p>b</p></card>",
            "<card id=\"a\"><p>x<p>y</p>b</card>"},
        {BreakWmlLines, "<wml><card id=\"a\"><p>a<i>b</i></p>",
            "\r\n<wml>\r\n<card id=\"a\">\r\n<p>a<i>b</i>\r\n</p>"},
        {InsertTemporaeryRadioButtons, R"(<!--option onpick="a\b"-->1<!--/option-->)",
            R"~(<!--option onpick="a\b"--><input type=radio name="TempName1" )~"
            R"~(onclick="javascript:navigate('a/b')">1<!--/option-->)~"},
    };
    for (const auto& [apply, before, after] : rows) {
        std::string text = before;
        apply(text);
        EXPECT_EQ(text, after);
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
