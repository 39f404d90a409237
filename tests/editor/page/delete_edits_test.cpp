#include "support/marked_text.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

void expectDeleted(const std::vector<test::EditRow>& rows)
{
    test::expectEdits(deleteRange, rows);
}

TEST(DeleteRange, TakesItemsAndWhatShowsNothingWithoutThem)
{
    expectDeleted({
        {"a reference and a picture", "<p>a[&uuml;<img src=\"x\"></img>]b</p>", "<p>a|b</p>"},
        {"all of a format", "a<b>[b]</b>c", "a|c"},
        {"parts of two formats", "<b>a[b</b><i>c]d</i>", "<b>a|</b><i>d</i>"},
        {"a format that is never ended and goes on", "a[<b>b]c", "a|<b>c"},
        {"a link as a whole", "a<a href=\"x\">[bc</a>]d", "a|d"},
    });
}

TEST(DeleteRange, KeepsMarkersInPairs)
{
    const std::string list = "<p>a<!--select-->";
    const std::string one = "<!--option x--><input type=radio>bc<!--/option-->";
    const std::string two = "<!--option y--><input type=radio>d<!--/option-->";
    const std::string end = "<!--/select-->e</p>";
    expectDeleted({
        {"a radio button takes its option",
            list + "<!--option x-->[<input type=radio>]bc<!--/option-->" + two + end,
            "<p>a|<!--select-->" + two + end},
        {"the last option takes its list",
            list + "<!--option x-->[<input type=radio>]bc<!--/option-->" + end, "<p>a|e</p>"},
        {"from a caption into the next option",
            list
                + "<!--option x--><input type=radio>b[c<!--/option-->"
                  "<!--option y--><input type=radio>d]<!--/option-->"
                + end,
            list + "<!--option x--><input type=radio>b|<!--/option-->" + end},
        {"from ahead of a list into it",
            "<p>[a<!--select--><!--option x--><input type=radio>]bc<!--/option-->" + two + end,
            "<p>|<!--select-->" + two + end},
        {"a do block at the border", "a[b]<!--do--><!--/do-->c", "a|<!--do--><!--/do-->c"},
        {"the text of a do block but for its end", "x<!--do-->[a<!--go/-->b]c<!--/do-->",
            "x|<!--do--><!--go/-->c<!--/do-->"},
        {"a single marker behind another parent's text", "<b>a[b</b><!--go/-->c]d",
            "<b>a|</b><!--go/-->d"},
    });
}

TEST(DeleteRange, MakesOneOfTwoBlocks)
{
    expectDeleted({
        {"the border alone", "<p>A[</p><p>]B</p>", "<p>A|B</p>"},
        {"plain text round a paragraph", "A[<p>x</p>]B", "A|B"},
        {"all of plain text and a part behind", "[A<p align=center>b]B</p>",
            "<p align=center>|B</p>"},
        {"a part of a paragraph that a table follows",
            "A[<p align=center>b]B<table><tr><td>x</td></tr></table>C</p>",
            "A|B<table><tr><td>x</td></tr></table><p align=center>C</p>"},
        {"half of a marker over the border", "<p>a[<!--x-->b</p><p>c]d<!--/x--></p>",
            "<p>a|<!--x-->d<!--/x--></p>"},
    });
}

TEST(DeleteRange, TakesTablesAsWholesAndEmptiesCells)
{
    const std::string table = "<table><tr><td>a</td><td>b</td></tr>\r\n<tr><td>c</td></tr></table>";
    expectDeleted({
        {"a table in text", "A[x" + table + "y]B", "A|B"},
        {"an end marker in a table", "A[<!--x--><table><tr><td>a<!--/x--></table>]B", "A|B"},
        {"a start marker in a table", "A[<table><tr><td><!--x-->a</table>]B<!--/x-->",
            "A|<!--x-->B<!--/x-->"},
        {"cells with paragraphs",
            "<table><tr><td>x<p>a[a</p></td><td><b>b]</b><p>c</p></td></tr></table>",
            "<table><tr><td><p>|</p></td><td><p></p></td></tr></table>"},
        {"from ahead of a table into it",
            "A[x<table><tr><td>a</td><td>b]b</td><td>c</td></tr></table>",
            "A|<table><tr><td></td><td></td><td>c</td></tr></table>"},
        {"from a table to behind it", "<table><tr><td>a</td><td>[b</td></tr></table>x]B",
            "<table><tr><td>a</td><td>|</td></tr></table>B"},
        {"from a table to another one",
            "<table><tr><td>[a</td></tr></table>x<table><tr><td>b</td><td>c]</td></tr></table>",
            "<table><tr><td>|</td></tr></table><table><tr><td></td><td></td></tr></table>"},
        {"a table in a cell",
            "<table><tr><td>a[<table><tr><td>b</td></tr></table>]c</td></tr></table>",
            "<table><tr><td>a|c</td></tr></table>"},
    });
}

TEST(DeleteRange, KeepsTheNeighboursAsTheyAre)
{
    expectDeleted({
        {"two blanks", "<p>a [b] c</p>", "<p>a |&nbsp;c</p>"},
        {"a blank that would be layout", "<p>a</p>[x] <p>b</p>", "<p>a</p>|&nbsp;<p>b</p>"},
        {"an '&' and a name", "<p>&[x]amp;</p>", "<p>&amp;|amp;</p>"},
        {"an '&' and a number", "<p>&#[y]65</p>", "<p>&amp;#|65</p>"},
        {"a reference and a semicolon", "<p>&auml[x];</p>", "<p>&auml;|;</p>"},
    });
}

TEST(DeleteBackwardAndForward, TakeOneItemOrTheBorderToANeighbour)
{
    const std::string cell = "<table><tr><td>";
    const std::string end = "</td></tr></table>";
    const std::string rows[][4] = {
        {"a picture", "<p><img></img>|<br/></p>", "<p>|<br/></p>", "<p><img></img>|</p>"},
        {"the only letter of a format", "a<b>b|</b><i>c</i>", "a|<i>c</i>", "a<b>b|</b>"},
        {"borders", "<p>a</p><p>|</p><p>b</p>", "<p>a|</p><p>b</p>", "<p>a</p><p>|b</p>"},
        {"a cell's ends", cell + "|" + end, cell + "|" + end, cell + "|" + end},
        {"behind a table", cell + "a" + end + "|b", cell + "a" + end + "|b",
            cell + "a" + end + "|"},
        {"ahead of a table", "b|" + cell + "a" + end, "|" + cell + "a" + end,
            "b|" + cell + "a" + end},
        {"between tables", cell + "a" + end + "|" + cell + "b" + end,
            cell + "a" + end + "|" + cell + "b" + end, cell + "a" + end + "|" + cell + "b" + end},
    };
    for (const auto& [name, before, backward, forward] : rows) {
        SCOPED_TRACE(name);
        const test::MarkedPage marked(before);
        const auto apply = [&](auto operation) {
            return test::editedWithCaret(marked.page, operation(marked.page, marked.from));
        };
        EXPECT_EQ(apply(deleteBackward), backward);
        EXPECT_EQ(apply(deleteForward), forward);
    }
}

} // namespace
} // namespace quillmere
