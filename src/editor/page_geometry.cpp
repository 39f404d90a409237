// Held by design_surface_mouse_test.cpp.

#include "editor/page_geometry.h"

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
    // The layout adds the place of the first cell to that of the table, and counts lines that cells
    // share for each of them.
    const auto format = shown->format();
    const auto corner = format.cellPadding() + 1.5 * format.border();
    const auto shared = 3 * format.border();
    const auto told = layoutOf(document).frameBoundingRect(shown);
    return QRectF(told.topLeft() - QPointF(corner, corner),
        told.size() - QSizeF(shared, shared + format.bottomMargin()));
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
