#include "forms/tool_picture.h"

#include <QPaintEvent>
#include <QPainter>

namespace quillmere {

namespace {

/// Paints the part of a picture that lies in `part`, so that a change of a small control costs
/// little.
void paintPart(QWidget& widget, const QPixmap& picture, const QRect& part)
{
    QPainter painter(&widget);
    const qreal ratio = picture.devicePixelRatio();
    if (ratio != widget.devicePixelRatioF()) painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF source(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
    painter.drawPixmap(QRectF(part), picture, source);
}

} // namespace

ToolPicture::ToolPicture(const QString& name, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void ToolPicture::setPicture(const QPixmap& picture)
{
    picture_ = picture;
    update();
}

void ToolPicture::paintEvent(QPaintEvent* event)
{
    paintPart(*this, picture_, event->rect());
}

SkinWindow::SkinWindow(QWidget* parent)
    : QWidget(parent)
{
}

void SkinWindow::setPicture(const QPixmap& picture)
{
    picture_ = picture;
    update();
}

void SkinWindow::paintEvent(QPaintEvent* event)
{
    if (!picture_.isNull()) paintPart(*this, picture_, event->rect());
}

} // namespace quillmere
