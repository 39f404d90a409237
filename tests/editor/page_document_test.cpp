#include "editor/page_document.h"

#include "editor/page_formats.h"
#include "support/area_texts.h"

#include <QTextBlock>
#include <QTextTable>

#include <gtest/gtest.h>

#include <tuple>

namespace quillmere {
namespace {

/// What the document shows, block by block.
std::vector<QString> shownBlocks(const QTextDocument& document)
{
    std::vector<QString> blocks;
    for (auto block = document.begin(); block.isValid(); block = block.next())
        blocks.push_back(block.text());
    return blocks;
}

/// What the page has, block by block.
std::vector<QString> wantedBlocks(const SurfacePage& page)
{
    std::vector<QString> blocks;
    for (const auto& block : page.blocks) {
        QString text;
        for (auto item = block.firstItem; item < block.endItem; ++item)
            text += shownCharacter(page.items[item]);
        blocks.push_back(text);
    }
    return blocks;
}

QTextCharFormat formatAt(QTextDocument& document, int position)
{
    QTextCursor cursor(&document);
    cursor.setPosition(position);
    return cursor.charFormat();
}

TEST(PageDocument, HasTheBlocksAndItemsOfThePageAtTheirPlaces)
{
    test::forEachAreaText([](const std::string& name, const std::string& text) {
        SCOPED_TRACE(name);
        const auto page = readSurfacePage(text);
        QTextDocument document;
        showPage(document, page, {});
        ASSERT_EQ(shownBlocks(document), wantedBlocks(page)) << text;
        int last = -1;
        for (std::size_t block = 0; block < page.blocks.size(); ++block)
            for (std::size_t offset = 0; offset <= itemCount(page.blocks[block]); ++offset) {
                const PagePlace place{block, offset};
                const auto position = positionOf(document, place);
                ASSERT_GT(position.value, last);
                ASSERT_EQ(placeOf(document, position), place);
                last = position.value;
            }
    });
}

TEST(PageDocument, PutsTheBlocksOfACellIntoItAndLetsTheLastCellOfAShortRowTakeTheRest)
{
    const auto page = readSurfacePage(
        "<table><tr><td>a<td>b<td>c</tr><tr><td>d<td>e</tr><tr><td>f</tr></table>");
    QTextDocument document;
    showPage(document, page, {});
    ASSERT_EQ(page.cells.size(), 6U);
    for (const auto& cell : page.cells) {
        QTextCursor cursor(document.findBlockByNumber(static_cast<int>(cell.firstBlock)));
        ASSERT_NE(cursor.currentTable(), nullptr);
        const auto shown = cursor.currentTable()->cellAt(cursor);
        EXPECT_EQ(shown.row(), cell.row);
        EXPECT_EQ(shown.column(), cell.column);
        EXPECT_EQ(shown.columnSpan(), cell.columnSpan);
    }
}

TEST(PageDocument, ShowsAChangeAsThePageAnewWould)
{
    const std::tuple<const char*, const char*, ItemChange> rows[] = {
        {"<p>ab</p>", "<p>a<b>x</b>b</p>", {{0, 1}, 0, 1, 2}},
        {"<p>a<br/>b</p>", "<p>ab</p>", {{0, 1}, 1, 1, 1}},
        {"<table><tr><td>ab<td>c</table>", "<table><tr><td>ab<td><img src=x></table>",
            {{2, 0}, 1, 2, 3}},
    };
    for (const auto& [before, after, change] : rows) {
        SCOPED_TRACE(after);
        QTextDocument document;
        showPage(document, readSurfacePage(before), {});
        const auto wanted = readSurfacePage(after);
        showChange(document, wanted, change, {});
        QTextDocument anew;
        showPage(anew, wanted, {});
        EXPECT_EQ(shownBlocks(document), shownBlocks(anew));
        for (int i = 1; i < anew.characterCount(); ++i)
            EXPECT_EQ(formatAt(document, i), formatAt(anew, i)) << i;
    }
}

} // namespace
} // namespace quillmere
