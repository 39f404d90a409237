// The blocks come in the order of the text, and a text document counts the blocks of its cells
// where they stand, so that the number of a block is the same on both sides. Held by
// page_document_test.cpp.

#include "editor/page_document.h"

#include "editor/page_formats.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>

#include <algorithm>
#include <vector>

namespace quillmere {
namespace {

/// Writes a page into an empty document.
class PageWriter {
public:
    PageWriter(QTextDocument& document, const SurfacePage& page, const SurfaceStyle& style);
    void writeAll();

private:
    void writeBlocks(QTextCursor cursor, std::size_t first, std::size_t end);
    void writeBlock(QTextCursor& cursor, std::size_t block);
    void writeTable(QTextCursor& cursor, std::size_t table);

    QTextDocument& document_;
    const SurfacePage& page_;
    const SurfaceStyle& style_;
    std::vector<std::size_t> tableBehind_; // by block: the table that follows it, or kNone
    std::vector<std::vector<std::size_t>> cells_; // by table
};

TextStyle emptyStyle(const SurfacePage& page, const PageBlock& block)
{
    return page.styles.empty() ? TextStyle{} : page.styles[block.style];
}

PageWriter::PageWriter(QTextDocument& document, const SurfacePage& page, const SurfaceStyle& style)
    : document_(document)
    , page_(page)
    , style_(style)
    , tableBehind_(page.blocks.size(), kNone)
    , cells_(page.tables.size())
{
    for (std::size_t table = 0; table < page.tables.size(); ++table)
        tableBehind_[page.tables[table].blockAhead] = table;
    for (std::size_t cell = 0; cell < page.cells.size(); ++cell)
        cells_[page.cells[cell].table].push_back(cell);
}

void PageWriter::writeAll()
{
    QTextCursor cursor(&document_);
    cursor.beginEditBlock();
    writeBlocks(cursor, 0, page_.blocks.size());
    cursor.endEditBlock();
}

// A table makes the block behind it, and a cell its first one; all others are inserted.
void PageWriter::writeBlocks(QTextCursor cursor, std::size_t first, std::size_t end)
{
    bool isThere = true;
    for (std::size_t block = first; block < end; ++block) {
        if (!isThere) cursor.insertBlock();
        isThere = false;
        writeBlock(cursor, block);
        const auto table = tableBehind_[block];
        if (table == kNone) continue;
        writeTable(cursor, table);
        block = page_.tables[table].blockBehind - 1;
        isThere = true;
    }
}

void insertItems(QTextCursor& cursor, const SurfacePage& page, std::size_t first, std::size_t end,
    const SurfaceStyle& style)
{
    const auto isObject = [&](std::size_t item) {
        return page.items[item].shown == u'\uFFFC' && page.items[item].kind != ItemKind::Character;
    };
    for (std::size_t run = first; run < end;) {
        QString text(shownCharacter(page.items[run]));
        std::size_t next = run + 1;
        for (; !isObject(run) && next < end && !isObject(next)
             && page.items[next].style == page.items[run].style;
             ++next)
            text += shownCharacter(page.items[next]);
        cursor.insertText(text, itemFormat(page, page.items[run], style));
        run = next;
    }
}

// The format of a cell is that of its first block, which is therefore merged and not set.
void PageWriter::writeBlock(QTextCursor& cursor, std::size_t block)
{
    const auto& shown = page_.blocks[block];
    const bool isLow = isLineNextToTable(page_, block);
    cursor.setBlockFormat(isLow ? lowBlockFormat() : blockFormat(shown, style_));
    cursor.mergeBlockCharFormat(isLow ? lowFormat() : textFormat(emptyStyle(page_, shown), style_));
    insertItems(cursor, page_, shown.firstItem, shown.endItem, style_);
}

void PageWriter::writeTable(QTextCursor& cursor, std::size_t table)
{
    const auto& shown = page_.tables[table];
    auto* grid = cursor.insertTable(shown.rows, shown.columns, tableFormat());
    for (const auto index : cells_[table]) {
        const auto& cell = page_.cells[index];
        if (cell.columnSpan > 1) grid->mergeCells(cell.row, cell.column, 1, cell.columnSpan);
    }
    for (const auto index : cells_[table]) {
        const auto& cell = page_.cells[index];
        writeBlocks(grid->cellAt(cell.row, cell.column).firstCursorPosition(), cell.firstBlock,
            cell.endBlock);
    }
    cursor.setPosition(grid->lastPosition() + 1);
}

} // namespace

void showPage(QTextDocument& empty, const SurfacePage& page, const SurfaceStyle& style)
{
    empty.setUndoRedoEnabled(false);
    empty.setDefaultFont(pageFont(style, style.fontSizePx));
    PageWriter(empty, page, style).writeAll();
    Q_ASSERT(static_cast<std::size_t>(empty.blockCount()) == page.blocks.size());
}

void showChange(QTextDocument& document, const SurfacePage& wanted, const ItemChange& change,
    const SurfaceStyle& style)
{
    QTextCursor cursor(&document);
    cursor.setPosition(positionOf(document, change.place).value);
    cursor.beginEditBlock();
    cursor.setPosition(
        cursor.position() + static_cast<int>(change.removed), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    insertItems(cursor, wanted, change.firstItem, change.endItem, style);
    cursor.endEditBlock();
}

PagePlace placeOf(const QTextDocument& document, CaretPosition position)
{
    const auto block = document.findBlock(position.value);
    return {static_cast<std::size_t>(block.blockNumber()),
        static_cast<std::size_t>(position.value - block.position())};
}

CaretPosition positionOf(const QTextDocument& document, PagePlace place)
{
    const auto block = document.findBlockByNumber(static_cast<int>(place.block));
    const int length = block.length() - 1; // without its separator
    return {block.position() + std::min(static_cast<int>(place.offset), length)};
}

bool isLineNextToTable(const SurfacePage& page, std::size_t block)
{
    if (itemCount(page.blocks[block]) > 0) return false;
    return std::ranges::any_of(page.tables, [block](const PageTable& table) {
        return table.blockAhead == block || table.blockBehind == block;
    });
}

void setCaretInBlock(QTextDocument& document, const SurfacePage& page, std::size_t block,
    bool caretInIt, const SurfaceStyle& style)
{
    const bool isLow = !caretInIt && isLineNextToTable(page, block);
    const auto format = isLow ? lowBlockFormat() : blockFormat(page.blocks[block], style);
    QTextCursor cursor(document.findBlockByNumber(static_cast<int>(block)));
    if (cursor.blockFormat() == format) return;
    cursor.setBlockFormat(format);
    cursor.mergeBlockCharFormat(
        isLow ? lowFormat() : sizeFormat(emptyStyle(page, page.blocks[block]), style));
}

} // namespace quillmere
