#include "document/design_to_wml.h"

#include "document/failure.h"
#include "document/wml_to_design.h"
#include "support/conversion_session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

std::string wml(std::string text, bool standardOutput = false)
{
    test::ConversionSession none(0, OutputRules(standardOutput));
    DesignToWml(text, none.session);
    return text;
}

struct Row {
    const char* name;
    std::string design;
    std::string wanted;
};

TEST(DesignToWml, TurnsWhatTheSurfaceWroteIntoWml)
{
    const std::vector<Row> rows{
        {"emphasis", "<EM>x</EM><STRONG>y</STRONG>", "<i>x</i><strong>y</strong>"},
        {"paragraph", "<P align=center class=x>a</P>", "<p align=\"center\">a</p>"},
        {"frame and fonts",
            "<HTML><HEAD></HEAD><BODY LINK=\"#0\"><FONT size=2>a</FONT></BODY></HTML>", "a"},
        {"comment", "a<!-- b -->c", "ac"},
        {"table", "<TABLE align=center columns=2 title=Ab border=1>",
            "<table title=\"Ab\" align=\"center\" columns=\"2\">"},
        {"table with quotes", "<table Columns=\"2\" title=\"A b\" valign=\"TOP\">",
            "<table title=\"A b\" align=\"top\" columns=\"2\">"},
        {"table without title", "<TABLE border=1><TABLE TITLE=a>",
            "<TABLE border=1><TABLE TITLE=a>"},
        {"link", "<A href=#X class=y>a</A >", "<a href=\"#X\">a</a>"},
        {"link with quotes", "<A class=y href=\"a b\">", "<a href=\"a b\">"},
        {"links that stay", "<A name=x><A HREF=x>", "<A name=x><A HREF=x>"},
        {"do", "<!--do type=\"accept\" label=\"Ab\" Name=\"C\"-->x<!--/do-->",
            "<do type=\"accept\" label=\"Ab\" name=\"c\">x</do>"},
        {"do without label", "<!--do type=\"prev\"-->", "<!--do type=\"prev\"-->"},
        {"go", "<!--go href=\"#X\"/--><!--go href=\"#x\"--><!--/go-->",
            "<go href=\"#X\"/><go href=\"#x\"></go>"},
        {"select", "<!--SELECT x--><!--OPTION value=\"A\"-->a<!--/OPTION--><!--/select-->",
            "<select><OPTION value=\"A\">a</option></select>"},
        {"card", "<!--card id=\"A\" Title=\"b\"--><!--/CARD-->",
            "<card id=\"A\" Title=\"b\"></card>"},
        {"a marker that has lost its dashes", "<!--go href=\"#a\">", "<go href=\"#a\">"},
        {"a marker within a tag", "<x <!--go-->", "<!--go>"},
        {"a raw do goes", "<do type=\"prev\"><prev/></do>", "<p>"},
        {"no such picture", "<IMG alt=x src=\"C:\\a.bmp\" vspace=1>", "</img>"},
        {"image without source", "<IMG src=a.bmp></img>", "<IMG src=a.bmp>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(wml(row.design), row.wanted);
    }
}

TEST(DesignToWml, WritesEveryTableByTheStandardRules)
{
    const std::vector<Row> rows{
        {"no title", "<TABLE align=center COLUMNS=2 border=1>",
            "<table align=\"center\" columns=\"2\">"},
        {"title in capitals", "<TABLE TITLE=\"Ab\">", "<table title=\"Ab\">"},
        {"nothing at all", "<TABLE border=1>", "<table>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(wml(row.design, true), row.wanted);
    }
}

TEST(DesignToWml, LeavesTheTextWhereItFails)
{
    test::ConversionSession none(0);
    const std::vector<std::string> open{"<P><!--do type label=\"b-->", "<P><TABLE title=\"b>",
        "<P><TABLE title=b columns=\"2>", "<P><A href=\"#x>", "<P><IMG src=\"a>"};
    for (const auto& source : open) {
        std::string text = source;
        EXPECT_THROW(DesignToWml(text, none.session), InvalidArgument) << source;
        EXPECT_EQ(text, source);
    }
    EXPECT_THROW(wml("<A href=>" + std::string(32757, 'x')), Overflow); // two quotes too many
}

TEST(DesignToWml, GivesBackWhatCameIn)
{
    const std::string deck
        = "<card id=\"A\" title=\"B\" newcontext=\"true\"><do type=\"accept\" label=\"Zur Liste\">"
          "<go href=\"#L\"/></do><p align=\"center\"><b>a</b> <i>b</i><br/><a "
          "href=\"x.wml#Y\">c</a></p>"
          "<p><select><option value=\"1\" onpick=\"#A\">d</option></select>"
          "<table title=\"T\" align=\"lr\" "
          "columns=\"2\"><tr><td>1</td><td>2</td></tr></table></p></card>";
    test::ConversionSession none(0);
    std::string text = deck;
    WmlToDesign(text, 0, none.session);
    EXPECT_NE(text, deck);
    DesignToWml(text, none.session);
    EXPECT_EQ(text, deck);
}

} // namespace
} // namespace quillmere
