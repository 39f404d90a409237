// Held by tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/number_field.h"

#include "document/platform/word_ids.h"
#include "forms/text.h"
#include "forms/trap.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <array>

namespace quillmere {

NumberField::NumberField(
    Session& session, QLineEdit* field, QScrollBar* scroll, NumberLimits limits)
    : QObject(field)
    , session_(session)
    , field_(field)
    , scroll_(scroll)
{
    if (scroll_ != nullptr)
        connect(scroll_, &QScrollBar::valueChanged, this,
            [this](int value) { field_->setText(QString::number(-value)); });
    setLimits(limits);
    field_->installEventFilter(this);
    connect(field_, &QLineEdit::textChanged, this, [this] { filter(); });
}

void NumberField::setLimits(NumberLimits limits)
{
    limits_ = limits;
    if (scroll_ == nullptr) return;
    const QSignalBlocker blocker(scroll_);
    scroll_->setRange(-limits.greatest, -limits.least);
}

void NumberField::setValue(int value)
{
    field_->setText(QString::number(value));
}

std::optional<int> NumberField::value() const
{
    return fieldNumber(coreText(field_->text()), limits_);
}

std::optional<int> NumberField::checkedValue()
{
    const auto number = value();
    if (number) return number;
    const std::array gaps{std::to_string(limits_.least), std::to_string(limits_.greatest)};
    session_.messages.show(word::kNumberRange, gaps, MessageIcon::Warning);
    setValue(fallback_);
    field_->setFocus();
    field_->selectAll();
    return std::nullopt;
}

void NumberField::filter()
{
    const auto typed = field_->text();
    const auto kept = shownText(NumberFilter(coreText(typed)));
    if (kept != typed) {
        const int caret = field_->cursorPosition();
        const QSignalBlocker blocker(field_);
        field_->setText(kept);
        field_->setCursorPosition(std::min(caret, static_cast<int>(kept.size())));
    }
    if (scroll_ == nullptr || !value()) return;
    const QSignalBlocker blocker(scroll_);
    scroll_->setValue(-*value());
}

bool NumberField::eventFilter(QObject* watched, QEvent* event)
{
    const auto reason = [event] { return static_cast<QFocusEvent*>(event)->reason(); };
    if (event->type() == QEvent::FocusIn && reason() != Qt::PopupFocusReason)
        QTimer::singleShot(0, field_, &QLineEdit::selectAll);
    if (event->type() == QEvent::KeyPress && stepBy(static_cast<QKeyEvent*>(event)->key()))
        return true;
    const bool isLeft = event->type() == QEvent::FocusOut
        && (reason() == Qt::TabFocusReason || reason() == Qt::BacktabFocusReason
            || reason() == Qt::MouseFocusReason || reason() == Qt::ShortcutFocusReason);
    // The focus has not moved yet; a message box would get it.
    if (isLeft) QTimer::singleShot(0, this, [this] { leave(); });
    return QObject::eventFilter(watched, event);
}

/// The keys up and down move the scroll bar; false for any other key.
bool NumberField::stepBy(int key)
{
    if (scroll_ == nullptr || (key != Qt::Key_Up && key != Qt::Key_Down)) return false;
    scroll_->triggerAction(
        key == Qt::Key_Up ? QScrollBar::SliderSingleStepSub : QScrollBar::SliderSingleStepAdd);
    field_->selectAll();
    return true;
}

void NumberField::leave()
{
    if (!field_->isVisible() || !field_->isEnabled() || field_->hasFocus()) return;
    trapped(session_.messages, [this] { (void)checkedValue(); });
}

} // namespace quillmere
