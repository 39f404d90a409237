// Drawn on a grid of 16. Held by the pictures of the gallery.

#include "forms/list_icons.h"

#include <QPainter>
#include <QPainterPath>

namespace quillmere {

namespace {

constexpr int kSidePx = 16;
constexpr qreal kLinePx = 1.4;
constexpr qreal kCornerPx = 1.5;

QPixmap drawn(const QWidget& list, QPalette::ColorRole role, void (*drawing)(QPainter&))
{
    const auto ratio = list.devicePixelRatioF();
    QPixmap picture(QSize(kSidePx, kSidePx) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(list.palette().color(role), kLinePx, Qt::SolidLine, Qt::RoundCap));
    drawing(painter);
    return picture;
}

QIcon icon(const QWidget& list, QPalette::ColorRole role, void (*drawing)(QPainter&))
{
    QIcon both(drawn(list, role, drawing));
    both.addPixmap(drawn(list, QPalette::HighlightedText, drawing), QIcon::Selected);
    return both;
}

} // namespace

QIcon folderIcon(const QWidget& list)
{
    return icon(list, QPalette::Link, [](QPainter& painter) {
        QPainterPath folder(QPointF(1.5, 12.5));
        for (const auto& corner : {QPointF(1.5, 3.5), QPointF(6, 3.5), QPointF(7.5, 5.5),
                 QPointF(14.5, 5.5), QPointF(14.5, 12.5)})
            folder.lineTo(corner);
        folder.closeSubpath();
        painter.drawPath(folder);
    });
}

QIcon deckIcon(const QWidget& list)
{
    return icon(list, QPalette::Text, [](QPainter& painter) {
        painter.drawRoundedRect(QRectF(3.5, 1.5, 9, 13), kCornerPx, kCornerPx);
        for (const double y : {5.5, 8.0, 10.5})
            painter.drawLine(QPointF(6, y), QPointF(10, y));
    });
}

} // namespace quillmere
