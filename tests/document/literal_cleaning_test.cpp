// Holds the slow version of the cleaning, which judges the fast one, against examples.

#include "literal/cleaning.h"
#include "support/text_examples.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace quillmere::literal {
namespace {

using test::applied;
using test::expectAll;

/// The pass whose name begins with `number`.
template <char tens, char ones> std::string pass(std::string text)
{
    const std::string number{tens, ones};
    for (const Pass& pass : cleanPasses())
        if (std::string_view(pass.name).substr(0, 2) == number) return pass.apply(std::move(text));
    return "no such pass";
}

TEST(LiteralCleaning, PassesOfTheCleaning)
{
    constexpr auto kDoBlock = pass<'1', ' '>;
    constexpr auto kPairs = pass<'3', ' '>;
    constexpr auto kRuns = pass<'1', '0'>;
    constexpr auto kCard = pass<'1', '5'>;
    constexpr auto kTail = pass<'1', '6'>;
    expectAll({
        {"do without go", kDoBlock, "a<!--do x--><!--/do-->b", "ab"},
        {"do without end", kDoBlock, "a<!--do--><!--go-->b", "ab"},
        {"do end ahead", kDoBlock, "<!--/do--><!--do-->b<!--go-->c", "<!--/do-->c"},
        {"do alone", kDoBlock, "a<!--do-->b", "ab"},
        {"go and do end", kDoBlock, "a<!--go-->b<!--/do-->c", "ac"},
        {"go alone", kDoBlock, "<!--/do-->a<!--go-->b", "<!--/do-->ab"},
        {"do ends alone", kDoBlock, "a<!--/do-->b<!--/do-->", "ab<!--/do-->"},
        {"orphan end", pass<'2', ' '>, "<!--/option--><!--option-->", "<!--option-->"},
        {"lone option", kPairs, "<!--option--><input>a<b>",
            "<!--option--><input>a<!--/option--><b>"},
        {"option ends late", kPairs, "<!--option-->1<!--option-->2<!--/option--><!--/select-->",
            "<!--option-->1<!--/option--><!--option-->2<!--/option--><!--/select-->"},
        {"doubled end", kPairs, "<!--option-->1<!--/option-->2<!--/option-->",
            "<!--option-->1<!--/option-->2"},
        {"list ends between", kPairs, "<!--option-->1<!--/select-->2<!--option-->3<!--/option-->",
            "<!--option-->1<!--/option--><!--/select-->2<!--option-->3<!--/option-->"},
        {"only the last gets an end", kPairs, "<!--option-->1<!--option-->2<!--/select-->",
            "<!--option-->1<!--option-->2<!--/option--><!--/select-->"},
        {"list start", pass<'4', ' '>, "a<!--option-->", "a<!--select--><!--option-->"},
        {"list end", pass<'5', ' '>, "<!--option-->1<!--/option-->a",
            "<!--option-->1<!--/option--><!--/select-->a"},
        {"list without options", pass<'6', ' '>, "a<!--select--><!--/select-->b", "ab"},
        {"list end alone", pass<'6', ' '>, "a<!--/select-->b", "a<!--/select-->b"},
        {"do block last", pass<'7', ' '>, "a<!--do--><!--/do-->b",
            "ab<!--do--><!--/do--><!--/card-->"},
        {"empty paragraph", pass<'8', ' '>, "<P>&nbsp;</P>x", "<br/>x"},
        {"cells", pass<'9', ' '>, "<table><tr><td><P>a</P></td></tr> x <tr></tr>y</table>",
            "<table><tr><td>a<br/></td></tr><tr></tr></table>"},
        {"table without end", pass<'9', ' '>, "<table><tr></tr>x<table>",
            "<table><tr></tr></table>x<table>"},
        {"run", kRuns, "<p>1<p>2<p>3</p>", "<p>123</p>"},
        {"aligned run", kRuns, "<p>1<p align=right>2</p>", "<p align=right>12</p>"},
        {"no end", kRuns, "<p>1</p><p>2", "<p>1</p>2"},
        {"behind the last text", pass<'1', '1'>, "<p>1</p><p></p><br><!--/card-->",
            "<p>1<!--/card-->"},
        {"merge", pass<'1', '2'>, "<p>1</p><p>2</p><p>3</p><p align=left>4</p>",
            "<p>123</p><p align=left>4</p>"},
        {"merge, the walk steps back", pass<'1', '2'>,
            "<p align=left>1</p><p>2</p><p class=\"x\">3</p>", "<p align=left>1<p>2</p>3</p>"},
        {"ends", pass<'1', '3'>, "<p>1</p>2</p><p></p>", "<p>12</p><p></p>"},
        {"last end", pass<'1', '4'>, "<p>1<!--/card-->", "<p>1</p><!--/card-->"},
        {"blanks only", kCard, "<body> <!--/card-->", "<body> <p></p><!--/card-->"},
        {"list only", kCard, "<body><!--select-->a<!--/select--><!--/card-->",
            "<body><!--select-->a<!--/select--><p></p><!--/card-->"},
        {"text and list", kCard, "<body>b<!--select-->a<!--/select--><!--/card-->",
            "<body><p>b<!--select-->a<!--/select--></p><!--/card-->"},
        {"one character behind", kTail, "<p>1</p>2<!--/card-->", "<p>1</p>2<!--/card-->"},
        {"text behind", kTail, "<p>1</p>23<!--/card-->", "<p>1</p><p>23</p><!--/card-->"},
        {"blanks behind a do block's tag", kTail, "<p>1</p><!--do-->  <!--/do--><!--/card-->",
            "<p>1</p><p><!--do-->  <!--/do--></p><!--/card-->"},
        {"break outside", pass<'1', '7'>, "<br><p><br></p><br>", "<p><br></p>"},
        {"doubled brackets", pass<'2', '2'>, "<<p>>x", "<p>>x"},
        {"three brackets", pass<'2', '2'>, "<<<p>", "<<p>"},
        {"letter behind a bracket", pass<'2', '2'>, "<b<i>a>b>c<", "<<i>>>c<"},
    });
    EXPECT_THROW((void)kPairs("<!--option--><!--option--><!--/option-->"), std::runtime_error);
}

TEST(LiteralCleaning, WholeCleaning)
{
    constexpr auto kClean = applied<CleanDesignHtml>;
    expectAll({
        {"text only", kClean, "<BODY>Hello</BODY>", "<BODY><p>Hello</BODY></p><!--/card-->"},
        {"text and do", kClean, "<BODY>Hi<!--do x--><!--go--><!--/go--><!--/do--></BODY>",
            "<BODY><p>Hi</BODY></p><!--do x--><!--go--><!--/go--><!--/do--><!--/card-->"},
        {"empty", kClean, "<BODY></BODY>", "<BODY></BODY><p></p><!--/card-->"},
        {"option alone", kClean, "<p>x</p><!--option value=\"1\"-->a<p>y</p>",
            "<p>x<!--select--><!--option value=\"1\"-->a<!--/option--><!--/select-->y</p>"
            "<!--/card-->"},
        {"letters", kClean, "<p>M\xFCller, caf\xE9</p>", "<p>Mueller, caf</p><!--/card-->"},
        {"empty paragraph", kClean, "<p>x</p><P>&nbsp;</P>", "<p>x</p><!--/card-->"},
        {"blanks", kClean, "<p>a  b </p>", "<p>a  b</p><!--/card-->"},
    });
}

} // namespace
} // namespace quillmere::literal
