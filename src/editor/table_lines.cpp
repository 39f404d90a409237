// All lines are whole dots of the device wide and lie on them, so that they look alike at every
// resolution. Seen in the pictures of quillmere-gallery.

#include "editor/table_lines.h"

#include "editor/page_formats.h"
#include "editor/page_geometry.h"

#include <algorithm>
#include <cmath>

namespace quillmere {
namespace {

/// Fills rectangles that lie on the dots of the device.
class DotPainter {
public:
    DotPainter(QPainter& painter, const QColor& colour)
        : painter_(painter)
        , toDevice_(painter.deviceTransform())
        , fromDevice_(toDevice_.inverted())
        , colour_(colour)
        , width_(std::max(1.0, std::floor(toDevice_.m11() * kTableLinePx)))
    {
    }
    void across(double y, double left, double right) { draw({left, y}, {right, y}); }
    void down(double x, double top, double bottom) { draw({x, top}, {x, bottom}); }

private:
    void draw(QPointF from, QPointF to)
    {
        const auto begin = toDevice_.map(from).toPoint();
        const auto end = toDevice_.map(to).toPoint();
        const QRectF dots(begin, end);
        painter_.fillRect(fromDevice_.mapRect(dots.adjusted(0, 0, width_, width_)), colour_);
    }

    QPainter& painter_;
    QTransform toDevice_;
    QTransform fromDevice_;
    QColor colour_;
    double width_;
};

void drawTable(
    DotPainter& painter, const SurfacePage& page, std::size_t table, const TableLines& lines)
{
    for (const double y : lines.rows)
        painter.across(y, lines.columns.front(), lines.columns.back());
    painter.down(lines.columns.back(), lines.rows.front(), lines.rows.back());
    for (const auto& cell : page.cells) {
        if (cell.table != table) continue;
        const auto row = static_cast<std::size_t>(cell.row);
        painter.down(lines.columns[static_cast<std::size_t>(cell.column)], lines.rows[row],
            lines.rows[row + 1]);
    }
}

} // namespace

void drawTableLines(QPainter& painter, const QTextDocument& document, const SurfacePage& page,
    const SurfaceStyle& style, const QRectF& visible)
{
    for (std::size_t table = 0; table < page.tables.size(); ++table) {
        if (!tableRect(document, page, table).intersects(visible)) continue;
        const bool hasBorder = page.tables[table].border;
        DotPainter dots(painter, hasBorder ? lineColour(style) : tone(style, 0.25));
        drawTable(dots, page, table, tableLines(document, page, table));
    }
}

} // namespace quillmere
