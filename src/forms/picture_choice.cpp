// Held by tests/forms/assistant_test.cpp.

#include "forms/picture_choice.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kMarginPx = 16;
constexpr int kPicturePx = 48;
constexpr int kWidthPx = 420;
constexpr int kHeightPx = 80;
constexpr qreal kCornerPx = 9;
constexpr qreal kRingPx = 2;
constexpr int kTint = 36; // of 255

QColor tinted(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

} // namespace

PictureChoice::PictureChoice(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

void PictureChoice::setPicture(const QPixmap& picture)
{
    picture_ = picture;
    update();
}

QSize PictureChoice::sizeHint() const
{
    const int textPx = std::max(QFontMetrics(titleFont()).horizontalAdvance(text()),
        fontMetrics().horizontalAdvance(toolTip()));
    return {std::max(kWidthPx, textPx + kPicturePx + 3 * kMarginPx), kHeightPx};
}

QFont PictureChoice::titleFont() const
{
    auto font = this->font();
    font.setWeight(QFont::DemiBold);
    if (font.pixelSize() > 0)
        font.setPixelSize(font.pixelSize() + 2);
    else
        font.setPointSizeF(font.pointSizeF() * 1.15);
    return font;
}

bool PictureChoice::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) return true; // its text stands on the choice already
    return QAbstractButton::event(event);
}

void PictureChoice::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(isDown() ? QPalette::Midlight : QPalette::Button));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerPx, kCornerPx);

    const QRect place(kMarginPx, (height() - kPicturePx) / 2, kPicturePx, kPicturePx);
    if (!picture_.isNull()) painter.drawPixmap(place, picture_);
    const int left = picture_.isNull() ? kMarginPx : place.right() + kMarginPx;
    const QRect texts(left, kMarginPx, width() - left - kMarginPx, height() - 2 * kMarginPx);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(texts, Qt::AlignLeft | Qt::AlignBottom, toolTip());
    painter.setFont(titleFont());
    painter.drawText(texts, Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, text());
}

void PictureChoice::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    emit highlighted(true);
}

void PictureChoice::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    emit highlighted(hasFocus());
}

void PictureChoice::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    emit highlighted(true);
}

void PictureChoice::focusOutEvent(QFocusEvent* event)
{
    QAbstractButton::focusOutEvent(event);
    emit highlighted(underMouse());
}

ChoiceHighlight::ChoiceHighlight(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void ChoiceHighlight::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto accent = palette().color(QPalette::Highlight);
    painter.setPen(QPen(accent, kRingPx));
    painter.setBrush(tinted(accent, kTint));
    const qreal inset = kRingPx / 2;
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCornerPx, kCornerPx);
}

} // namespace quillmere
