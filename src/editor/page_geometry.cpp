// Held by design_surface_mouse_test.cpp.

#include "editor/page_geometry.h"

#include "editor/page_formats.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextTable>

#include <algorithm>

namespace quillmere {
namespace {

constexpr double kBorderReachPx = 4;

QAbstractTextDocumentLayout& layoutOf(const QTextDocument& document)
{
    return *document.documentLayout();
}

QTextTable* textTable(const QTextDocument& document, const PageTable& table)
{
    // The last cell of the table ends where the block behind it begins.
    const auto behind = document.findBlockByNumber(static_cast<int>(table.blockBehind)).position();
    QTextCursor inside(document.findBlock(behind - 1));
    return inside.currentTable();
}

} // namespace

QRectF itemRect(const QTextDocument& document, PagePlace place)
{
    const auto block = document.findBlockByNumber(static_cast<int>(place.block));
    const auto corner = layoutOf(document).blockBoundingRect(block).topLeft();
    const auto offset = static_cast<int>(place.offset);
    const auto line = block.layout()->lineForTextPosition(offset);
    if (!line.isValid()) return {};
    const double from = line.cursorToX(offset);
    const double to = line.cursorToX(offset + 1);
    return QRectF(std::min(from, to), line.y(), std::abs(to - from), line.height())
        .translated(corner);
}

std::optional<PagePlace> itemAt(
    const QTextDocument& document, const SurfacePage& page, QPointF point)
{
    const int position = layoutOf(document).hitTest(point, Qt::FuzzyHit);
    if (position < 0) return std::nullopt;
    const auto near = placeOf(document, {position});
    // the nearest place lies ahead of the item under the point, or behind it
    for (const std::size_t back : {std::size_t{0}, std::size_t{1}}) {
        if (near.offset < back) break;
        const PagePlace place{near.block, near.offset - back};
        if (place.offset >= itemCount(page.blocks[place.block])) continue;
        if (itemRect(document, place).contains(point)) return place;
    }
    return std::nullopt;
}

QRectF tableRect(const QTextDocument& document, const SurfacePage& page, std::size_t table)
{
    auto* shown = textTable(document, page.tables[table]);
    if (shown == nullptr) return {};
    // The layout adds the place of the first cell's content to that of the table.
    const auto format = shown->format();
    const auto corner = format.cellPadding() + format.cellSpacing();
    const auto told = layoutOf(document).frameBoundingRect(shown);
    return {
        told.topLeft() - QPointF(corner, corner), told.size() - QSizeF(0, format.bottomMargin())};
}

TableLines tableLines(const QTextDocument& document, const SurfacePage& page, std::size_t table)
{
    const auto& shown = page.tables[table];
    const auto outer = tableRect(document, page, table);
    TableLines lines;
    lines.rows.resize(static_cast<std::size_t>(shown.rows) + 1, outer.bottom() - kTableLinePx);
    lines.columns.resize(static_cast<std::size_t>(shown.columns) + 1, outer.right() - kTableLinePx);
    auto* const first = textTable(document, shown);
    if (first == nullptr) return lines;
    const auto ahead = first->format().cellPadding() + first->format().cellSpacing();
    for (const auto& cell : page.cells) {
        if (cell.table != table) continue;
        const auto block = document.findBlockByNumber(static_cast<int>(cell.firstBlock));
        const auto corner = layoutOf(document).blockBoundingRect(block).topLeft();
        lines.rows[static_cast<std::size_t>(cell.row)] = corner.y() - ahead;
        lines.columns[static_cast<std::size_t>(cell.column)] = corner.x() - ahead;
    }
    return lines;
}

std::size_t tableBorderAt(const QTextDocument& document, const SurfacePage& page, QPointF point)
{
    const QMarginsF reach(kBorderReachPx, kBorderReachPx, kBorderReachPx, kBorderReachPx);
    std::size_t found = kNone;
    for (std::size_t table = 0; table < page.tables.size(); ++table) {
        const auto rect = tableRect(document, page, table);
        const bool isOn = rect.marginsAdded(reach).contains(point)
            && !rect.marginsRemoved(reach).contains(point);
        if (isOn) found = table;
    }
    return found;
}

} // namespace quillmere
