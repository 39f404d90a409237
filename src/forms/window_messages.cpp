// Held by tests/forms/messages_test.cpp.

#include "forms/window_messages.h"

#include "forms/frm_message.h"
#include "forms/message_icon.h"
#include "forms/overlay.h"
#include "forms/session.h"
#include "forms/text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace quillmere {

namespace {

struct Caption {
    QMessageBox::StandardButton button;
    const char* name;
    const char* text;
};

constexpr Caption kCaptions[] = {
    {QMessageBox::Yes, "btnYes", "&Ja"},
    {QMessageBox::No, "btnNo", "&Nein"},
    {QMessageBox::Ok, "btnOk", "&OK"},
};

// A plain message is an information; a question without an icon has none.
QMessageBox::Icon boxIcon(MessageIcon icon, bool isQuestion)
{
    switch (icon) {
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Warning:
        return QMessageBox::Warning;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::None:
        break;
    }
    return isQuestion ? QMessageBox::NoIcon : QMessageBox::Information;
}

void nameButtons(const QMessageBox& box)
{
    for (const auto& caption : kCaptions) {
        auto* button = box.button(caption.button);
        if (button == nullptr) continue;
        button->setObjectName(QString::fromLatin1(caption.name));
        button->setText(QString::fromLatin1(caption.text));
    }
}

QWidget* windowInFront()
{
    auto* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

/// Keeps a message from being answered by accident: a key that is still held from before answers
/// nothing, such as the Escape that closed the window, and a question only its two buttons.
class Deliberately final : public QObject {
public:
    Deliberately(const QMessageBox& box, bool isQuestion)
        : box_(box)
        , isQuestion_(isQuestion)
    {
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            return key->isAutoRepeat() || (isQuestion_ && key->key() == Qt::Key_Escape);
        }
        const bool isClosed = receiver == &box_ && event->type() == QEvent::Close;
        if (!isClosed || !isQuestion_ || !event->spontaneous()) return false;
        event->ignore();
        return true;
    }

private:
    const QMessageBox& box_;
    bool isQuestion_;
};

// A waiting pointer over a message would say that it cannot be answered.
void restorePointer()
{
    while (QApplication::overrideCursor() != nullptr)
        QApplication::restoreOverrideCursor();
}

} // namespace

QMessageBox::StandardButton WindowMessages::shown(
    const QString& text, MessageIcon icon, QMessageBox::StandardButtons buttons) const
{
    const bool isQuestion = buttons.testFlag(QMessageBox::Yes);
    QMessageBox box(boxIcon(icon, isQuestion), QApplication::applicationDisplayName(), text,
        buttons, windowInFront());
    box.setObjectName(QStringLiteral("frmMessageBox"));
    box.setTextFormat(Qt::PlainText); // names of files may look like markup
    box.setDefaultButton(isQuestion ? QMessageBox::Yes : QMessageBox::Ok);
    if (!isQuestion) box.setEscapeButton(QMessageBox::Ok);
    nameButtons(box);
    if (session_ != nullptr) {
        OverlayForm(box, *session_);
        const auto theme = activeTheme(session_->skins);
        if (box.icon() != QMessageBox::NoIcon)
            box.setIconPixmap(messageIcon(icon, theme, box.devicePixelRatioF()));
        session_->gSurfaceActive = false;
    }
    Deliberately deliberately(box, isQuestion);
    QApplication::instance()->installEventFilter(&deliberately); // until its end
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

QString WindowMessages::wordText(int word, std::span<const std::string> gaps) const
{
    std::vector<std::string_view> filling(gaps.begin(), gaps.end());
    filling.resize(3); // no word has more gaps
    return shownText(words_.GetWord(word, {filling[0], filling[1], filling[2]}));
}

bool WindowMessages::ask(int word, std::span<const std::string> gaps, MessageIcon icon)
{
    return askText(wordText(word, gaps), icon);
}

void WindowMessages::show(int word, std::span<const std::string> gaps, MessageIcon icon)
{
    showText(wordText(word, gaps), icon);
}

bool WindowMessages::showNote(Note note)
{
    if (session_ == nullptr) return false;
    restorePointer();
    frmMessage form(*session_, windowInFront());
    form.SetInitializations(note);
    form.showModally();
    return !form.Cancelled;
}

void WindowMessages::ShowCriticalError(const QString& text)
{
    showText(text, MessageIcon::Critical);
}

void WindowMessages::showText(const QString& text, MessageIcon icon)
{
    restorePointer();
    static_cast<void>(shown(text, icon, QMessageBox::Ok));
}

bool WindowMessages::askText(const QString& text, MessageIcon icon)
{
    restorePointer();
    return shown(text, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

} // namespace quillmere
