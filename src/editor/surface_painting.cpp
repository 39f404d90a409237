// The frame round a selected object or table. Seen in the pictures of quillmere-gallery.

#include "editor/design_surface.h"

#include "editor/page_geometry.h"

#include <QPainter>
#include <QScrollBar>

namespace quillmere {
namespace {

constexpr double kFrameWidthPx = 2;

} // namespace

QRectF DesignSurface::controlRect() const
{
    const auto rect = control_->table == kNone ? itemRect(*document(), control_->item)
                                               : tableRect(*document(), page_, control_->table);
    return rect.translated(-documentPoint({0, 0}));
}

void DesignSurface::paintEvent(QPaintEvent* event)
{
    QTextEdit::paintEvent(event);
    if (!control_) return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style_.link, kFrameWidthPx));
    painter.drawRoundedRect(controlRect().adjusted(-1, -1, 1, 1), 3, 3);
}

} // namespace quillmere
