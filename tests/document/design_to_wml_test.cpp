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
        {"paragraph", "<P align=center class=x>a</P>", R"(<p align="center">a</p>)"},
        {"frame and fonts",
            R"(<HTML><HEAD></HEAD><BODY LINK="#0"><FONT size=2>a</FONT></BODY></HTML>)", "a"},
        {"comment", "a<!-- b -->c", "ac"},
        {"table", "<TABLE align=center columns=2 title=Ab border=1>",
            R"(<table title="Ab" align="center" columns="2">)"},
        {"table with quotes", R"(<table Columns="2" title="A b" valign="TOP">)",
            R"(<table title="A b" align="top" columns="2">)"},
        {"table without title", "<TABLE border=1><TABLE TITLE=a>",
            "<TABLE border=1><TABLE TITLE=a>"},
        {"link", "<A href=#X class=y>a</A >", R"(<a href="#X">a</a>)"},
        {"link with quotes", R"(<A class=y href="a b">)", R"(<a href="a b">)"},
        {"links that stay", "<A name=x><A HREF=x>", "<A name=x><A HREF=x>"},
        {"do", R"(<!--do type="accept" label="Ab" Name="C"-->x<!--/do-->)",
            R"(<do type="accept" label="Ab" name="c">x</do>)"},
        {"do without label", R"(<!--do type="prev"-->)", R"(<!--do type="prev"-->)"},
        {"go", R"(<!--go href="#X"/--><!--go href="#x"--><!--/go-->)",
            R"(<go href="#X"/><go href="#x"></go>)"},
        {"select", R"(<!--SELECT x--><!--OPTION value="A"-->a<!--/OPTION--><!--/select-->)",
            R"(<select><OPTION value="A">a</option></select>)"},
        {"card", R"(<!--card id="A" Title="b"--><!--/CARD-->)",
            R"(<card id="A" Title="b"></card>)"},
        {"a marker that has lost its dashes", R"(<!--go href="#a">)", R"(<go href="#a">)"},
        {"a marker within a tag", "<x <!--go-->", "<!--go>"},
        {"a raw do goes", R"(<do type="prev"><prev/></do>)", "<p>"},
        {"no such picture", R"(<IMG alt=x src="C:\a.bmp" vspace=1>)", "</img>"},
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
            R"(<table align="center" columns="2">)"},
        {"title in capitals", R"(<TABLE TITLE="Ab">)", R"(<table title="Ab">)"},
        {"nothing at all", "<TABLE border=1>", "<table>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(wml(row.design, true), row.wanted);
    }
}

/// The text as a conversion leaves it that fails for a missing quote; "" for one that succeeds.
std::string leftByAFailure(std::string text)
{
    test::ConversionSession none(0);
    try {
        DesignToWml(text, none.session);
    } catch (const InvalidArgument&) {
        return text;
    }
    return {};
}

TEST(DesignToWml, LeavesTheTextWhereItFails)
{
    const std::vector<std::string> open{R"(<P><!--do type label="b-->)", R"(<P><TABLE title="b>)",
        R"(<P><TABLE title=b columns="2>)", R"(<P><A href="#x>)", R"(<P><IMG src="a>)"};
    for (const auto& text : open)
        EXPECT_EQ(leftByAFailure(text), text);
}

TEST(DesignToWml, FailsOnATextThatGrowsTooLong)
{
    EXPECT_THROW(wml("<A href=>" + std::string(32757, 'x')), Overflow); // two quotes are added
}

TEST(DesignToWml, GivesBackWhatCameIn)
{
    const std::string deck
        = R"(<card id="A" title="B" newcontext="true"><do type="accept" label="Zur Liste">)"
          R"(<go href="#L"/></do><p align="center"><b>a</b> <i>b</i><br/><a )"
          R"(href="x.wml#Y">c</a></p>)"
          R"(<p><select><option value="1" onpick="#A">d</option></select>)"
          R"(<table title="T" align="lr" )"
          R"(columns="2"><tr><td>1</td><td>2</td></tr></table></p></card>)";
    test::ConversionSession none(0);
    std::string text = deck;
    WmlToDesign(text, 0, none.session);
    EXPECT_NE(text, deck);
    DesignToWml(text, none.session);
    EXPECT_EQ(text, deck);
}

} // namespace
} // namespace quillmere
