// QAbstractButton does the work of keys, of a release outside of the area and of helpers for the
// disabled; what is added is the right button and the looks. tests/forms/tool_label_test.cpp holds
// this.

#include "forms/tool_label.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kCorner = 9;
constexpr int kCaptionHeight = 20;
constexpr int kIconRoom = 34; // left of a caption that stands beside its icon
constexpr float kHoverShare = 0.09F; // of the ink over the ground
constexpr float kDisabledShare = 0.6F; // of the ground over what is disabled
constexpr int kSmallestFontPx = 8;

QColor faded(QColor colour, float share)
{
    colour.setAlphaF(share);
    return colour;
}

/// The font made smaller until the text fits.
QFont fitting(QFont font, const QString& text, int width, const QPaintDevice* device)
{
    int size = QFontInfo(font).pixelSize();
    while (size > kSmallestFontPx && QFontMetrics(font, device).horizontalAdvance(text) > width)
        font.setPixelSize(--size);
    return font;
}

/// The focus comes back to where it was when a menu or another window goes.
bool isReturn(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

bool isKeyboardReason(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

} // namespace

ToolLabel::ToolLabel(const QString& name, ToolPicture* picture, QWidget* parent)
    : QAbstractButton(parent)
    , picture_(picture)
{
    setObjectName(name);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus); // a click leaves the focus where the person writes
    setCursor(Qt::ArrowCursor);
    connect(this, &QAbstractButton::pressed, this, &ToolLabel::showHeld);
    connect(this, &QAbstractButton::released, this, &ToolLabel::showHeld);
}

QSize ToolLabel::sizeHint() const
{
    constexpr QSize kUsual(70, 64);
    return kUsual;
}

bool ToolLabel::isBeside() const
{
    return width() * 2 > height() * 3;
}

QRect ToolLabel::captionPlace() const
{
    if (isBeside()) return rect().adjusted(kIconRoom, 0, -2, 0);
    return {2, height() - kCaptionHeight - 5, width() - 4, kCaptionHeight};
}

void ToolLabel::showHeld()
{
    const bool held = isDown() || rightDown_;
    if (picture_ != nullptr && picture_->isVisibleTo(parentWidget()) != held)
        picture_->setVisible(held);
    update();
}

void ToolLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool held = isDown() || rightDown_;
    if (isEnabled() && underMouse() && (!held || picture_ == nullptr)) {
        painter.setBrush(faded(palette().color(QPalette::WindowText), kHoverShare));
        painter.drawRoundedRect(rect(), kCorner, kCorner);
    }
    paintCaption(painter);
    // over the icon below and the caption alike
    if (!isEnabled())
        painter.fillRect(rect(), faded(palette().color(QPalette::Window), kDisabledShare));
    if (!keyboardFocus_ || !hasFocus()) return;
    painter.setPen(
        QPen(palette().color(held ? QPalette::HighlightedText : QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kCorner - 1, kCorner - 1);
}

void ToolLabel::paintCaption(QPainter& painter) const
{
    const QRect place = captionPlace();
    const bool onAccent = picture_ != nullptr && picture_->isVisibleTo(parentWidget());
    QFont wanted = font();
    wanted.setWeight(isBeside() ? QFont::DemiBold : QFont::Medium);
    painter.setFont(fitting(wanted, text(), place.width(), this));
    painter.setPen(palette().color(
        QPalette::Active, onAccent ? QPalette::HighlightedText : QPalette::WindowText));
    const int alignment = isBeside() ? Qt::AlignVCenter | Qt::AlignLeft : int(Qt::AlignCenter);
    painter.drawText(place, alignment | Qt::TextHideMnemonic | Qt::TextSingleLine, text());
}

void ToolLabel::mousePressEvent(QMouseEvent* event)
{
    QAbstractButton::mousePressEvent(event);
    if (event->button() == Qt::RightButton) rightDown_ = true;
    showHeld();
    event->accept();
    emit mouseDown(event->button());
}

void ToolLabel::mouseReleaseEvent(QMouseEvent* event)
{
    const auto button = event->button();
    if (button == Qt::RightButton) rightDown_ = false;
    const QPointer<ToolLabel> alive(this); // clicked() may end the window
    QAbstractButton::mouseReleaseEvent(event);
    event->accept();
    if (!alive) return;
    showHeld();
    emit mouseUp(button);
}

/// A window that the system moves gets no release.
void ToolLabel::letGo()
{
    rightDown_ = false;
    setDown(false);
    showHeld();
}

void ToolLabel::enterEvent(QEnterEvent* event)
{
    if (event->buttons() == Qt::NoButton) letGo();
    QAbstractButton::enterEvent(event);
}

void ToolLabel::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat()) return click();
    QAbstractButton::keyPressEvent(event);
}

void ToolLabel::focusInEvent(QFocusEvent* event)
{
    if (!isReturn(event->reason())) keyboardFocus_ = isKeyboardReason(event->reason());
    QAbstractButton::focusInEvent(event);
}

void ToolLabel::focusOutEvent(QFocusEvent* event)
{
    if (!isReturn(event->reason())) keyboardFocus_ = false;
    QAbstractButton::focusOutEvent(event);
}

void ToolLabel::hideEvent(QHideEvent* event)
{
    QAbstractButton::hideEvent(event);
    letGo();
}

bool ToolLabel::event(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) showHeld();
    if (event->type() == QEvent::ToolTipChange) setAccessibleDescription(toolTip());
    return QAbstractButton::event(event);
}

} // namespace quillmere
