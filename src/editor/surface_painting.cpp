// The lines of tables and the frame round a selected object or table. Seen in the pictures of
// quillmere-gallery.

#include "editor/design_surface.h"

#include "editor/marker_objects.h"
#include "editor/page_geometry.h"
#include "editor/table_lines.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace quillmere {
namespace {

constexpr double kFrameWidthPx = 2;

} // namespace

QRectF DesignSurface::controlRect() const
{
    if (control_->table != kNone) return tableRect(*document(), page_, control_->table);
    return itemRect(*document(), control_->item);
}

void DesignSurface::paintEvent(QPaintEvent* event)
{
    QTextEdit::paintEvent(event);
    const auto scrolled = documentPoint({0, 0});
    QPainter painter(viewport());
    painter.translate(-scrolled);
    drawTableLines(painter, *document(), page_, style_, QRectF(event->rect()).translated(scrolled));
    drawFieldGroups(
        painter, *document(), page_, style_, QRectF(event->rect()).translated(scrolled));
    if (!control_) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style_.link, kFrameWidthPx));
    painter.drawRoundedRect(controlRect().adjusted(-2, -2, 2, 2), 3, 3);
}

} // namespace quillmere
