// Holds the slow versions, which judge the fast ones, against examples.

#include "literal/conversions.h"
#include "literal/corrections.h"
#include "literal/radio_buttons.h"
#include "support/text_examples.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quillmere::literal {
namespace {

using test::applied;
using test::expectAll;

std::string doBlockApart(std::string text)
{
    const std::string block = TakeDoBlock(text);
    return block + "|" + text;
}

std::string imagesWrapped(std::string text)
{
    WrapInParagraph(text, "<img", "</img");
    return text;
}

std::string boldSplit(std::string text)
{
    SplitAtParagraphs(text, "<b>", "</b>");
    return text;
}

/// The text and the pristine text stand on the two sides of a bar.
std::string whitespaceRestored(std::string text)
{
    const std::size_t bar = text.find('|');
    const std::string pristine = text.substr(bar + 1);
    text.resize(bar);
    RestoreWhitespace(text, pristine);
    return text;
}

TEST(LiteralExamples, Formats)
{
    constexpr auto kNesting = applied<RepairNesting>;
    constexpr auto kSelect = applied<RepairFormatAroundSelect>;
    constexpr auto kOverlap = applied<RepairFormatNesting>;
    expectAll({
        {"end alone", kNesting, "</u>text", "text"},
        {"beginning alone", kNesting, "<i>a<i>b", "ab"},
        {"nested beginning", kNesting, "<i>a<i>b</i>", "<i>ab</i>"},
        {"b is none of the pairs", kNesting, "<b>x", "<b>x"},
        {"end too many behind", kNesting, "<i>a</i>b</i>", "<i>a</i>b</i>"},
        {"around a list", kSelect, "<b><select>..</select></b>", "<select>..</select>"},
        {"in a list", kSelect, "<select><b>1</b><b>2</b></select>", "<select>12</select>"},
        {"into a list", kSelect, "<u>a<select>1</u></select>", "a<select>1</select>"},
        {"beside a list", kSelect, "<u>a</u><select></select>", "<u>a</u><select></select>"},
        {"twice around a list", kSelect, "<b><b><select></select></b></b>", "<select></select>"},
        {"out of a list and in", kSelect, "<select></b><b></select></b>", "<select></select>"},
        {"ends behind", kOverlap, "<b>1<i>2</b>3</i>", "<b>1<i>2</i></b>3"},
        {"begins ahead", kOverlap, "<i>1<big>2</i>3</big>", "<i>1<big>2</big></i>3"},
    });
}

TEST(LiteralExamples, Paragraphs)
{
    constexpr auto kRepair = applied<RepairParagraphs>;
    expectAll({
        {"text ahead", kRepair, "<card id=\"a\">x<p>y</p></card>",
            "<card id=\"a\"><p>x<p>y</p></card>"},
        {"signs ahead", kRepair, "<card>...<p>y</p></card>", "<card>...<p>y</p></card>"},
        {"text behind", kRepair, "<card><p>y</p>x</card>", "<card><p>y</p>x</card>"},
        {"doubled end", kRepair, "<p>a</p>b</p><p></p>", "<p>a</p>b<p></p>"},
        {"outside", imagesWrapped, "<p>a</p><img></img>", "<p>a</p><p><img></img></p>"},
        {"inside", imagesWrapped, "<p><img></img></p>", "<p><img></img></p>"},
        {"in one without end", imagesWrapped, "<p><img></img>", "<p><img></img>"},
        {"across", boldSplit, "<p><b>1</p><p>2</b></p>", "<p><b>1</b></p><p><b>2</b></p>"},
        {"across three", boldSplit, "<p><b>1</p><p></p><p>3</b></p>",
            "<p><b>1</b></p><p></p><p><b>3</b></p>"},
        {"across the last end", boldSplit, "<p><b>1</p></b>", "<p><b>1</p></b>"},
        {"without text", boldSplit, "<b> <i></i></b>x", " <i></i>x"},
    });
}

TEST(LiteralExamples, Layout)
{
    constexpr auto kBreak = applied<BreakWmlLines>;
    expectAll({
        {"do block", doBlockApart, "<do a>1</do> <do b>2</do><p></p></card>",
            "<do a>1</do> <do b>2</do>|<p></p></card>"},
        {"no end ahead of the card's", doBlockApart, "<do><p></card></do>", "|<do><p></card></do>"},
        {"end ahead of all", doBlockApart, "</do><do></card>", "|</do><do></card>"},
        {"break, no indent", kBreak, "<wml><card id=\"a\">", "\r\n<wml>\r\n<card id=\"a\">"},
        {"in the line", kBreak, "<wml>a<i>b</i></wml>", "\r\n<wml>a<i>b</i>\r\n</wml>"},
        {"passed over", kBreak, "<wml><p><b>x</b></p>", "\r\n<wml>\r\n<p>\r\n<b>x</b>\r\n</p>"},
        {"gaps come back", whitespaceRestored, "<a><p>x</p></a>|<a>\n\n<p> y </p>\n</a>",
            "<a>\n\n<p> x </p>\n</a>"},
        {"new tags are passed over", whitespaceRestored, "<a><q>x</q></a>|<a>\n<b/>\n</a>",
            "<a><q>x</q>\n</a>"},
    });
}

std::string designOf(std::string text)
{
    WmlToDesign(text);
    return text;
}

TEST(LiteralExamples, WmlToDesign)
{
    expectAll({
        {"mode is lost", designOf, R"(<p mode="nowrap" align="center">)", R"(<p align="center">)"},
        {"left anywhere", designOf, R"(<p id="leftside">)", R"(<p align="left">)"},
        {"do without label", designOf, R"(<do type="prev">)", R"(<do type="prev">)"},
        {"do", designOf, R"(<DO Type="ACCEPT" label="Weiter">)",
            R"(<!--do type="accept" label="Weiter"-->)"},
        {"go alone", designOf, R"(<go href="#a"/>)", R"(<!--go href="#a"/-->)"},
        {"go", designOf, R"(<go href="#A"></go>)", R"(<!--go href="#A"--><!--/go-->)"},
        {"list", designOf, R"(<select name="x"><option onpick="#A">1</OPTION></select>)",
            R"(<!--select--><!--option onpick="#A"-->1<!--/option--><!--/select-->)"},
        {"unknown", designOf, R"(a<input name="x"/>b<td align="right">c</td>)", "abc</td>"},
        {"prev", designOf, "<prev/>", "<p>"},
        {"table", designOf, R"(<table COLUMNS="2">)", R"(<table columns="2" border="1">)"},
        {"title", designOf, R"(<table title="Ab" columns="2">)",
            R"(<table title="Ab" columns="2" border="1">)"},
        {"link", designOf, R"(<a title="t" href="#A">x</a><a href="#>)",
            R"(<a href="#A">x</a><a href="#>)"},
        {"card", designOf, R"(<card id="A" title="B">)", R"(<!--card id="A" title="B"-->)"},
        {"card, id late", designOf, R"(<card title="a" id="x">)", ""},
        {"card, two blanks", designOf, R"(<card  id="x">)", ""},
        {"stray", designOf, "> x ><b>", "> x ><b>"},
        {"image", designOf, R"(<img src="a.wbmp" alt="x"/></img>)",
            R"(<img src="a.wbmp" alt="x"/>)"},
    });
    std::string card = R"(<card id="x">)";
    EXPECT_TRUE(WmlToDesign(card));
    EXPECT_FALSE(WmlToDesign(card));
    EXPECT_THROW((void)designOf(R"(<do type="a" label="x>)"), std::runtime_error);
}

TEST(LiteralExamples, DesignToWml)
{
    constexpr auto kWml = applied<DesignToWml>;
    expectAll({
        {"em", kWml, "<EM>x</EM>", "<i>x</i>"},
        {"table", kWml, "<TABLE align=center columns=2 title=Ab border=1>",
            R"(<table title="Ab" align="center" columns="2">)"},
        {"no title", kWml, "<TABLE border=1>", "<TABLE border=1>"},
        {"link", kWml, "<A href=#X>x</A>", R"(<a href="#X">x</a>)"},
        {"go", kWml, R"(<!--go href="#x"/-->)", R"(<go href="#x"/>)"},
        {"do", kWml, R"(<!--do type="A" label="B"--><!--/do-->)",
            R"(<do type="a" label="B"></do>)"},
        {"do without label", kWml, R"(<!--do type="a"-->)", R"(<!--do type="a"-->)"},
        {"unknown", kWml, "<FONT size=2>a</FONT><!-- b -->", "a"},
        {"image", kWml, R"(<IMG src="C:\T\Bmp0.bmp" vspace=3>)", "</img>"},
        {"card", kWml, R"(<!--card id="A" title="B"-->x<!--/card-->)",
            R"(<card id="A" title="B">x</card>)"},
    });
    EXPECT_THROW((void)kWml(R"(<a href="x>)"), std::runtime_error);
}

TEST(LiteralExamples, RadioButtons)
{
    const std::string options = R"(<!--option onpick="a\b"-->1<!--/option-->)"
                                R"(<!--option onpick=#x value="1"-->2<!--/option-->)"
                                R"(<!--option-->3<!--/option-->)";
    const std::string buttons
        = R"~(<!--option onpick="a\b"--><input type=radio name="TempName1" )~"
          R"~(onclick="javascript:navigate('a/b')">1<!--/option-->)~"
          R"~(<!--option onpick=#x value="1"--><input type=radio name="TempName2" )~"
          R"~(onclick="javascript:navigate('#x')">2<!--/option-->)~"
          R"~(<!--option--><input type=radio name="TempName3">3<!--/option-->)~";
    constexpr auto kDelete = applied<DeleteAllTemporaeryRadioButtons>;
    expectAll({
        {"insert", applied<InsertTemporaeryRadioButtons>, options, buttons},
        {"delete", kDelete, buttons, options},
        {"several in one", kDelete, "<!--option--><INPUT><input>a<!--/option--><input>",
            "<!--option-->a<!--/option--><input>"},
        {"no end", kDelete, "<!--option--><input>a", "<!--option--><input>a"},
    });
}

} // namespace
} // namespace quillmere::literal
