#include "editor/elements/table_edit.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace quillmere {
namespace {

TableSettings table(std::string title, std::string align, int rows, int columns)
{
    return {std::move(title), std::move(align), rows, columns};
}

TEST(GetTable, ReadsTablesOfAllSpellings)
{
    const std::tuple<std::string, TableSettings> cases[] = {
        {"<p><table title=\"A b\" align=\"C\" columns=\"2\" "
         "border=\"1\"><tr><td>a</td><td>b</td></tr>"
         "<tr><td>c</td></tr></table>",
            table("A b", "C", 2, 2)},
        {"<P><TABLE border=1 align=R title=Ab><TR><TD>a</TD></TR></TABLE>", table("Ab", "R", 1, 1)},
        {"<table><tr><td>a<tr><td>b</table><tr>", table("", "", 2, 2)}, // no end of a row
    };
    for (const auto& [text, wanted] : cases) {
        SCOPED_TRACE(text);
        const auto shown = GetTable(text, 0);
        ASSERT_TRUE(shown);
        EXPECT_EQ(shown->title, wanted.title);
        EXPECT_EQ(shown->align, wanted.align);
        EXPECT_EQ(shown->rows, wanted.rows);
        EXPECT_EQ(shown->columns, wanted.columns);
    }
    EXPECT_FALSE(GetTable("<p>x</p>", 1));
}

TEST(SetTable, ChangesWhatIsWanted)
{
    const std::tuple<std::string, std::string, TableSettings, std::string> cases[] = {
        {"without quotes, in capitals; other rows stay",
            "<TABLE title=o align=L columns=2 border=1><TR><TD>x</TD></TR></TABLE>",
            table("n", "R", 5, 3),
            "<TABLE title=\"n\" align=\"R\" columns=\"3\" border=1><TR><TD>|x</TD></TR></TABLE>"},
        {"no attributes", "<table><tr><td>x</td></tr></table>", table("n", "L", 1, 1),
            "<table title=\"n\" columns=\"1\"  align=\"L\"  ><tr><td>|x</td></tr></table>"},
        {"fewer columns keep the first cells",
            "<table title=\"n\" align=\"L\" "
            "columns=\"3\"><tr><td>a</td><td>b</td><td>c</td></tr></table>",
            table("n", "L", 1, 2),
            "<table title=\"n\" align=\"L\" columns=\"2\"><tr><td>|a</td><td>b</td></tr></table>"},
        {"more rows and cells, fewer of another table",
            "<table title=\"n\" align=\"L\" "
            "columns=\"1\"><tr><td>a</td></tr></table><table><tr></tr></table>",
            table("n", "L", 2, 2),
            "<table title=\"n\" align=\"L\" columns=\"2\"><tr><td>|a</td><td>Zelle</td></tr>"
            "<tr><td>Zelle</td><td>Zelle</td></tr></table><table><tr></tr></table>"},
        {"cells of another spelling do not count",
            "<table title=\"n\" align=\"L\" columns=\"1\"><tr><TD>a</TD></tr></table>",
            table("n", "L", 1, 2),
            "<table title=\"n\" align=\"L\" columns=\"2\"><tr><TD>|a</TD><td>Zelle</td>"
            "<td>Zelle</td></tr></table>"},
        {"cells without ends",
            "<table title=\"n\" align=\"L\" columns=\"2\"><tr><td>a<td>b</tr></table>",
            table("n", "L", 1, 1),
            "<table title=\"n\" align=\"L\" columns=\"1\"><tr><td>|a</tr></table>"},
        {"no table", "abc", table("n", "L", 1, 1), "|abc"},
    };
    for (const auto& [name, before, wanted, after] : cases) {
        SCOPED_TRACE(name);
        auto edit = SetTable(before, 0, wanted);
        EXPECT_EQ(edit.text.insert(static_cast<std::size_t>(edit.position), "|"), after);
    }
}

TEST(SetTable, LeavesAloneWhatIsNotChanged)
{
    const OutputRules rules(true);
    const std::string start = "<table columns=\"3\" align=\"LCR\">";
    const std::string first = "<tr id=\"r\"><td>1</td><td class=\"z\">2</td>";
    const std::string longer = "<tr><TD>3</TD><td>4</td><td>5</td></tr>";
    const auto uneven = start + first + "</tr>" + longer + "</table>";
    const std::tuple<TableSettings, std::string> cases[] = {
        {table("", "L", 2, 2), uneven},
        {table("", "", 2, 2), uneven},
        {table("n", "C", 2, 2),
            "<table title=\"n\"  columns=\"3\" align=\"C\">" + first + "</tr>" + longer
                + "</table>"},
        {table("", "L", 1, 3), start + first + "<td>Zelle</td></tr></table>"},
        {table("", "L", 2, 1),
            "<table columns=\"1\" align=\"LCR\"><tr id=\"r\"><td>1</td></tr>"
            "<tr><TD>3</TD></tr></table>"},
    };
    for (const auto& [wanted, after] : cases)
        EXPECT_EQ(SetTable(uneven, 0, wanted, rules).text, after);
}

TEST(InsertTable, PutsItInAsItIsTold)
{
    const std::string before = "<!--card id=\"a\"--><p>x &amp; y</p>";
    const auto place = static_cast<int>(before.find("amp")); // inside the entity
    auto edit = InsertTable(before, place, table("T", "L", 1, 2));
    EXPECT_EQ(edit.text.insert(static_cast<std::size_t>(edit.position), "|"),
        "<!--card id=\"a\"--><p>x &amp;<table title=\"T\" align=\"L\" columns=\"2\" "
        "border=\"1\"><tr>"
        "<td>|Zelle</td><td>Zelle</td></tr></table><!--Test--> <!--Test2--></br> y</p>");
    EXPECT_NE(InsertTable(before, place, table("T", "L", 1, 2), OutputRules(true))
                  .text.find("</table> y</p>"),
        std::string::npos);
}

TEST(DeleteTable, TakesTheTableButNotItsLineBreak)
{
    const std::string before = "<p>ab</p>";
    const auto inserted = InsertTable(before, 4, table("T", "L", 2, 2));
    const auto gone = DeleteTable(inserted.text, 5);
    EXPECT_EQ(gone.text, "<p>a<!--Test--> <!--Test2--></br>b</p>");
    EXPECT_EQ(gone.position, 4);
    EXPECT_EQ(DeleteTable("x<TABLE><TR></TABLE >y", 0).text, "x<TABLE><TR></TABLE >y");
    EXPECT_EQ(DeleteTable("x<TABLE><TR></TABLE>y", 0).text, "xy");
}

} // namespace
} // namespace quillmere
