#include "forms/message_icon.h"

#include <QPainter>

namespace quillmere {

namespace {

constexpr int kSizePx = 40;
constexpr int kSignPx = 24;

QChar signOf(MessageIcon icon)
{
    if (icon == MessageIcon::None) return 'i';
    return icon == MessageIcon::Question ? '?' : '!';
}

} // namespace

QPixmap messageIcon(MessageIcon icon, const Theme& theme, qreal ratio)
{
    const bool isFailure = icon == MessageIcon::Critical;
    QPixmap picture(QSize(kSizePx, kSizePx) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isFailure ? theme.danger : theme.accent);
    painter.drawEllipse(0, 0, kSizePx, kSizePx);
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(kSignPx);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(isFailure ? theme.onDanger : theme.onAccent);
    painter.drawText(QRect(0, 0, kSizePx, kSizePx), Qt::AlignCenter, signOf(icon));
    return picture;
}

} // namespace quillmere
