// Holds the slow version of the cleaning, which judges the fast one, against examples.

#include "literal/cleaning.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quillmere::literal {
namespace {

/// The pass whose name begins with `number`.
std::string applied(std::string_view number, const std::string& text)
{
    for (const Pass& pass : cleanPasses())
        if (std::string_view(pass.name).starts_with(number)) return pass.apply(text);
    return "no such pass";
}

TEST(LiteralCleaning, PassesOfTheCleaning)
{
    const char* const rows[][3] = {// number, before, after
        {"1 ", "a<!--do x--><!--/do-->b", "ab"}, {"1 ", "a<!--do--><!--go-->b", "ab"},
        {"1 ", "<!--/do--><!--do-->b<!--go-->c", "<!--/do-->c"}, {"1 ", "a<!--do-->b", "ab"},
        {"1 ", "a<!--go-->b<!--/do-->c", "ac"}, {"1 ", "<!--/do-->a<!--go-->b", "<!--/do-->ab"},
        {"1 ", "a<!--/do-->b<!--/do-->", "ab<!--/do-->"},
        {"2 ", "<!--/option--><!--option-->", "<!--option-->"},
        {"3 ", "<!--option--><input>a<b>", "<!--option--><input>a<!--/option--><b>"},
        {"3 ", "<!--option-->1<!--option-->2<!--/option--><!--/select-->",
            "<!--option-->1<!--/option--><!--option-->2<!--/option--><!--/select-->"},
        {"3 ", "<!--option-->1<!--/option-->2<!--/option-->", "<!--option-->1<!--/option-->2"},
        {"3 ", "<!--option-->1<!--/select-->2<!--option-->3<!--/option-->",
            "<!--option-->1<!--/option--><!--/select-->2<!--option-->3<!--/option-->"},
        {"3 ", "<!--option-->1<!--option-->2<!--/select-->",
            "<!--option-->1<!--option-->2<!--/option--><!--/select-->"},
        {"4 ", "a<!--option-->", "a<!--select--><!--option-->"},
        {"5 ", "<!--option-->1<!--/option-->a", "<!--option-->1<!--/option--><!--/select-->a"},
        {"6 ", "a<!--select--><!--/select-->b", "ab"},
        {"6 ", "a<!--/select-->b", "a<!--/select-->b"},
        {"7 ", "a<!--do--><!--/do-->b", "ab<!--do--><!--/do--><!--/card-->"},
        {"8 ", "<P>&nbsp;</P>x", "<br/>x"},
        {"9 ", "<table><tr><td><P>a</P></td></tr> x <tr></tr>y</table>",
            "<table><tr><td>a<br/></td></tr><tr></tr></table>"},
        {"9 ", "<table><tr></tr>x<table>", "<table><tr></tr></table>x<table>"},
        {"10", "<p>1<p>2<p>3</p>", "<p>123</p>"},
        {"10", "<p>1<p align=right>2</p>", "<p align=right>12</p>"},
        {"10", "<p>1</p><p>2", "<p>1</p>2"},
        {"11", "<p>1</p><p></p><br><!--/card-->", "<p>1<!--/card-->"},
        {"12", "<p>1</p><p>2</p><p>3</p><p align=left>4</p>", "<p>123</p><p align=left>4</p>"},
        {"12", "<p align=left>1</p><p>2</p><p class=\"x\">3</p>", "<p align=left>1<p>2</p>3</p>"},
        {"13", "<p>1</p>2</p><p></p>", "<p>12</p><p></p>"},
        {"14", "<p>1<!--/card-->", "<p>1</p><!--/card-->"},
        {"15", "<body> <!--/card-->", "<body> <p></p><!--/card-->"},
        {"15", "<body><!--select-->a<!--/select--><!--/card-->",
            "<body><!--select-->a<!--/select--><p></p><!--/card-->"},
        {"15", "<body>b<!--select-->a<!--/select--><!--/card-->",
            "<body><p>b<!--select-->a<!--/select--></p><!--/card-->"},
        {"16", "<p>1</p>2<!--/card-->", "<p>1</p>2<!--/card-->"},
        {"16", "<p>1</p>23<!--/card-->", "<p>1</p><p>23</p><!--/card-->"},
        {"16", "<p>1</p><!--do-->  <!--/do--><!--/card-->",
            "<p>1</p><p><!--do-->  <!--/do--></p><!--/card-->"},
        {"17", "<br><p><br></p><br>", "<p><br></p>"}, {"22", "<<p>>x", "<p>>x"},
        {"22", "<<<p>", "<<p>"}, {"22", "<b<i>a>b>c<", "<<i>>>c<"}};
    for (const auto& [number, before, after] : rows)
        EXPECT_EQ(applied(number, before), after) << number << before;
    EXPECT_THROW(
        (void)applied("3 ", "<!--option--><!--option--><!--/option-->"), std::runtime_error);
}

} // namespace
} // namespace quillmere::literal
