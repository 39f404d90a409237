#include "document/wml_to_design.h"

#include "document/failure.h"
#include "support/conversion_session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

std::string design(std::string text)
{
    test::ConversionSession none(0);
    WmlToDesign(text, 0, none.session);
    return text;
}

TEST(WmlToDesign, TurnsTagsIntoWhatTheSurfaceShows)
{
    struct Row {
        const char* name;
        std::string wml;
        std::string wanted;
    };
    const std::vector<Row> rows{
        {"a mode is lost", R"(<p mode="nowrap" align="center">)", R"(<p align="center">)"},
        {"a side's name anywhere", R"(<p id="leftside" align="right">)", R"(<p align="left">)"},
        {"plain formats", "<B>a</B><Big x>b</BIG ><I>c</I>", "<b>a</b><big>b</big><i>c</i>"},
        {"a format with attributes", R"(<b id="a">a</b>)", "a</b>"},
        {"line breaks", R"(a<BR clear="all">b</br>c)", "a<br/>bc"},
        {"do without label", R"(<do type="prev">)", R"(<do type="prev">)"},
        {"do", R"(<do type="accept" label="Weiter">)", R"(<!--do type="accept" label="Weiter"-->)"},
        {"only the label keeps its case", R"(<DO Type="X" label="Ab" Name="Y"></DO>)",
            R"(<!--do type="x" label="Ab" name="y"--><!--/do-->)"},
        {"do whose type comes later", R"(<do label="A" type="accept">)", ""},
        {"label in capitals", R"(<do type="x" LABEL="A">)", R"(<do type="x" LABEL="A">)"},
        {"go closed in itself", R"(<go href="#A"/>)", R"(<!--go href="#A"/-->)"},
        {"go", R"(<GO href="#a"></GO>)", R"(<!--GO href="#a"--><!--/go-->)"},
        {"select", R"(<select name="x"><option value="A" onpick="#a">T</OPTION></select>)",
            R"(<!--select--><!--option value="A" onpick="#a"-->T<!--/option--><!--/select-->)"},
        {"unknown elements", R"(a<input name="x"/>b<!-- c -->d<Timer value="1"/>)", "abd"},
        {"taken for a paragraph", R"(<prev/><postfield name="a" value="b"/>)", "<p><p>"},
        {"taken for a link", R"(<anchor>x</anchor><access domain="d"/>)",
            R"(<anchor>x<access domain="d"/>)"},
        {"cells", R"(<tr><td>a</td><td align="right">b</td></tr>)", "<tr><td>a</td>b</td></tr>"},
        {"table", R"(<TABLE Columns="2">)", R"(<table columns="2" border="1">)"},
        {"table with title", R"(<table title="Ab" Columns="2">)",
            R"(<table title="Ab" columns="2" border="1">)"},
        {"table with border", "<table border=0>", "<table border=0>"},
        {"link", R"(<A Title="t" HREF="#X">a</A>)", R"(<a href="#X">a</a>)"},
        {"links that stay", R"(<a href=#x><a href="#x>)", R"(<a href=#x><a href="#x>)"},
        {"a kept tag hides another", R"(<a <a href="x">b)", R"(<a href="x">b)"},
        {"the earlier row decides", R"(<a href="x" <b>y)", "<b>y"},
        {"a quoted end ends the tag", R"(<option value="a>b">)", R"(<!--option value="a-->b">)"},
        {"card", R"(<wml><card id="X" title="T"><p></p></card></wml>)",
            R"(<!--card id="X" title="T"--><p></p><!--/card-->)"},
        {"from the word card on", R"(<xcard  id="n">)", R"(<!--card  id="n"-->)"},
        {"id at a place without the bit", R"(<card  id="x"><card title="a" id="x"><CARD Id="x">)",
            R"(<!--CARD Id="x"-->)"},
        {"ends at strays", "> <p> > </p> <p", "> <p> > </p> <p"},
        {"an image tag without pictures", R"(<img src="a.wbmp"/>)", R"(<img src="a.wbmp"/>)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(design(row.wml), row.wanted);
    }
}

TEST(WmlToDesign, TellsWhetherACardBecameAMarker)
{
    test::ConversionSession none(0);
    std::string text = R"(<card id="a">)";
    EXPECT_TRUE(WmlToDesign(text, 0, none.session));
    text = R"(<card title="a" id="b"></card>)";
    EXPECT_FALSE(WmlToDesign(text, 0, none.session));
}

/// The text as a conversion leaves it that fails for a missing quote; "" for one that succeeds.
std::string leftByAFailure(std::string text)
{
    test::ConversionSession none(0);
    try {
        WmlToDesign(text, 0, none.session);
    } catch (const InvalidArgument&) {
        return text;
    }
    return {};
}

TEST(WmlToDesign, LeavesTheTextWhereItFails)
{
    const std::vector<std::string> open{R"(<p><do type="a" label="b>)", R"(<p><table title="b>)",
        "<p><do type label=>", R"(<p><img src="a>)", R"(<p><img src="a" alt="b>)"};
    for (const auto& text : open)
        EXPECT_EQ(leftByAFailure(text), text);
}

TEST(WmlToDesign, CountsTheTextAtEachStep)
{
    const std::string marker = "<go>"; // becomes five characters longer
    EXPECT_EQ(design(marker + std::string(32758, 'x')).size(), 32767U);
    EXPECT_THROW(design(marker + std::string(32759, 'x')), Overflow);
    EXPECT_THROW(
        design(marker + std::string(32752, 'x') + "<input>"), Overflow); // shrinks too late
    EXPECT_EQ(design("<input>" + marker + std::string(32756, 'x')).size(), 32765U);
    EXPECT_THROW(design(std::string(32768, 'x')), Overflow);
}

} // namespace
} // namespace quillmere
