#include "document/text/failure.h"
#include "document/text/text_lines.h"
#include "editor/surface_fixture.h"
#include "support/area_texts.h"

#include <QScrollBar>
#include <QTextTable>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace quillmere {
namespace {

using test::ShownSurface;

constexpr auto kTable = "<table title=\"T\"><tr><td>a</td><td><b>b</b></td></tr>"
                        "<tr><td><b>c</b></td><td><b>d</b></td></tr></table>";

/// Marks cells from one to another, as the mouse does.
void markCells(ShownSurface& surface, int fromRow, int fromColumn, int toRow, int toColumn)
{
    surface.setCaretOffset(surface.DocumentHTML().find("<td>") + 4);
    const auto* table = surface.textCursor().currentTable();
    ASSERT_NE(table, nullptr);
    auto cursor = table->cellAt(fromRow, fromColumn).firstCursorPosition();
    cursor.setPosition(table->cellAt(toRow, toColumn).lastPosition(), QTextCursor::KeepAnchor);
    surface.setTextCursor(cursor);
}

TEST(DesignSurface, SavesWhatItLoadedByteForByte)
{
    ShownSurface surface;
    test::forEachAreaText([&](const std::string& name, const std::string& text) {
        surface.files.write("Wml0.htm", text);
        surface.LoadURL("FILE://Wml0.htm");
        surface.SaveDocument("Wml1.htm");
        EXPECT_EQ(surface.files.read("Wml1.htm"), text) << name;
        EXPECT_FALSE(surface.Busy());
    });
    surface.NewDocument();
    EXPECT_EQ(surface.DocumentHTML(), "");
}

TEST(DesignSurface, KeepsWhatItShowsWhereAFileCannotBeRead)
{
    ShownSurface surface;
    surface.files.write("Wml0.htm", "<p>a</p>");
    surface.LoadURL("Wml0.htm");
    surface.type("x");
    surface.files.remove("Wml0.htm");
    EXPECT_THROW(surface.LoadURL("Wml0.htm"), FileFailure);
    EXPECT_EQ(surface.told(), "<p>x|a</p>");
    surface.undo();
    EXPECT_EQ(surface.DocumentHTML(), "<p>a</p>");
}

TEST(DesignSurface, KeepsTheCaretAtItsPlaceOverAReloadOnly)
{
    ShownSurface surface;
    surface.files.write("Wml0.htm", "<p>eins</p><p>zwei</p>");
    surface.LoadURL("Wml0.htm");
    surface.setCaretOffset(18);
    ASSERT_EQ(surface.told(), "<p>eins</p><p>zwei|</p>");
    surface.files.write("Wml0.htm", "<p>e<b>x</b>ins</p><p>zwei</p>");
    surface.LoadURL("Wml0.htm");
    EXPECT_EQ(surface.told(), "<p>e<b>x</b>ins</p><p>zwei|</p>");
    surface.undo();
    EXPECT_EQ(surface.DocumentHTML(), "<p>e<b>x</b>ins</p><p>zwei</p>");
    surface.files.write("Wml1.htm", "<p>e<b>x</b>ins</p><p>zwei</p>");
    surface.LoadURL("Wml1.htm");
    EXPECT_EQ(surface.caretOffset(), 3U);
}

TEST(DesignSurface, FindsTheMarkedPlaceWhereTheSameWordsStandSeveralTimes)
{
    ShownSurface surface;
    const std::string given
        = "<p>wo\r\nwo <a href=\"#wo\">wo</a> <b>wo</b></p>\r\n<!--select--><!--option "
          "value=\"wo\"-->"
          "<input type=radio "
          "name=\"wo\">wo<!--/option--><!--/select--><table><tr><td>wo<td>wo</table>";
    surface.give(given);
    const auto text = joinLines(given); // what places are told in
    std::vector<int> found;
    while (surface.find("wo")) {
        const auto range = FindMarkedRange(text, surface.selection());
        ASSERT_TRUE(range);
        found.push_back(range->Start);
        EXPECT_EQ(range->End, range->Start + 1);
        EXPECT_EQ(text.substr(static_cast<std::size_t>(range->Start) - 1, 2), "wo");
        HitTester hits;
        const bool isInLink = hits.HitTest("<a", "</a", text, surface.selection(), true).Inside;
        EXPECT_EQ(isInLink, found.size() == 3);
        const bool isInOption
            = hits.HitTest("<!--option", "<!--/option", text, surface.selection(), false).Inside;
        EXPECT_EQ(isInOption, found.size() == 5);
    }
    EXPECT_EQ(found.size(), 7U);
    EXPECT_TRUE(std::ranges::is_sorted(found));
}

TEST(DesignSurface, ChangesMarkedCellsAndNotWhatLiesBetweenThemInTheText)
{
    struct Row {
        const char* name;
        std::function<void(ShownSurface&)> change;
        const char* after;
    };
    const Row rows[] = {
        {"delete", [](auto& s) { s.press(Qt::Key_Delete); },
            "<tr><td>|</td><td><b>b</b></td></tr><tr><td></td><td><b>d</b></td></tr>"},
        {"typing", [](auto& s) { s.type("x"); },
            "<tr><td>x|</td><td><b>b</b></td></tr><tr><td></td><td><b>d</b></td></tr>"},
        {"markup", [](auto& s) { s.pasteHTML("<i>y</i>"); },
            "<tr><td><i>y|</i></td><td><b>b</b></td></tr><tr><td></td><td><b>d</b></td></tr>"},
        {"no format", [](auto& s) { s.ExecCommand(surface_command::kRemoveFormat); },
            "<tr><td>a</td><td><b>b</b></td></tr><tr><td>|c</td><td><b>d</b></td></tr>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ShownSurface surface;
        surface.give(kTable);
        markCells(surface, 0, 0, 1, 0);
        EXPECT_EQ(surface.selectedMarkup(), "a<br/><b>c</b>");
        row.change(surface);
        const auto head = std::string("<table title=\"T\">");
        EXPECT_EQ(surface.told(), head + row.after + "</table>");
        surface.undo();
        EXPECT_EQ(surface.DocumentHTML(), kTable) << "as one step";
    }
}

TEST(DesignSurface, PutsBehindTheTableWhatMarkedCellsCannotHold)
{
    ShownSurface surface;
    surface.setRules(OutputRules(true));
    const auto text = std::string("<p>") + kTable + "</p>";
    surface.give(text);
    markCells(surface, 0, 0, 1, 0);
    surface.pasteHTML("x<!--#input y-->");
    EXPECT_EQ(surface.told(),
        "<p><table title=\"T\"><tr><td>x|</td><td><b>b</b></td></tr>"
        "<tr><td></td><td><b>d</b></td></tr></table><!--#input y--></p>");
    surface.undo();
    EXPECT_EQ(surface.DocumentHTML(), text);
}

TEST(DesignSurface, RunsTheCommandsOfItsInterface)
{
    ShownSurface surface;
    surface.give("<p>a<b>|bc|d</b></p>");
    surface.ExecCommand(surface_command::kRemoveFormat);
    EXPECT_EQ(surface.DocumentHTML(), "<p>abc<b>d</b></p>");
    EXPECT_EQ(surface.selectedText(), "bc") << "it stays marked";
    surface.ExecCommand(surface_command::kCut);
    EXPECT_EQ(surface.told(), "<p>a|<b>d</b></p>");
    surface.ExecCommand(surface_command::kPaste);
    EXPECT_EQ(surface.told(), "<p>abc|<b>d</b></p>");
    surface.ExecCommand(surface_command::kUndo);
    surface.ExecCommand(surface_command::kUndo);
    surface.ExecCommand(surface_command::kUndo);
    EXPECT_EQ(surface.DocumentHTML(), "<p>a<b>bcd</b></p>");
    surface.ExecCommand(1);
    EXPECT_EQ(surface.DocumentHTML(), "<p>a<b>bcd</b></p>");
}

TEST(DesignSurface, PutsMarkupInPlaceOfWhatIsMarked)
{
    ShownSurface surface;
    surface.give("<p>ein |Wort| hier</p>");
    surface.pasteHTML("<a href=\"#x\">" + surface.selectedMarkup() + "</a>");
    EXPECT_EQ(surface.DocumentHTML(), "<p>ein <a href=\"#x\">Wort</a> hier</p>");
    EXPECT_THROW(surface.pasteHTML(std::string(40000, 'x')), Overflow);
    EXPECT_EQ(surface.DocumentHTML(), "<p>ein <a href=\"#x\">Wort</a> hier</p>");
    surface.setRules(OutputRules(true));
    surface.give("<p>|</p>");
    surface.pasteHTML(std::string(40000, 'x'));
    EXPECT_EQ(surface.DocumentHTML().size(), 40007U);
    EXPECT_GT(surface.selection().limit, 40007U);
}

TEST(DesignSurface, KeepsNoDocumentThatItShowsNoMore)
{
    ShownSurface surface;
    for (const char* text : {"<p>a</p>", kTable, "", "<p>b</p>"})
        surface.setDocumentHTML(text);
    EXPECT_EQ(surface.findChildren<QTextDocument*>().size(), 1);
}

TEST(DesignSurface, BeginsAtTheTopWithAnotherArea)
{
    ShownSurface surface;
    std::string text = "<p>";
    for (int line = 0; line < 200; ++line)
        text += "Zeile<br/>";
    surface.setDocumentHTML(text);
    surface.press(Qt::Key_End, Qt::ControlModifier);
    surface.type("x");
    EXPECT_GT(surface.verticalScrollBar()->value(), 1000);
    surface.setDocumentHTML(text);
    EXPECT_EQ(surface.verticalScrollBar()->value(), 0);
}

} // namespace
} // namespace quillmere
