// Keys and input methods. Keys that edit are told apart first; those that only move go to
// QTextEdit, and all others go on to the window. Held by surface_typing_test.cpp.

#include "editor/design_surface.h"

#include "document/text/failure.h"
#include "document/text/windows1252.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextTable>

#include <algorithm>
#include <utility>

namespace quillmere {

struct DesignSurface::Key {
    QKeySequence::StandardKey key;
    Action action;
};

namespace {

constexpr QKeySequence::StandardKey kMovingKeys[] = {QKeySequence::MoveToNextChar,
    QKeySequence::MoveToPreviousChar, QKeySequence::MoveToNextWord,
    QKeySequence::MoveToPreviousWord, QKeySequence::MoveToNextLine,
    QKeySequence::MoveToPreviousLine, QKeySequence::MoveToNextPage,
    QKeySequence::MoveToPreviousPage, QKeySequence::MoveToStartOfLine,
    QKeySequence::MoveToEndOfLine, QKeySequence::MoveToStartOfBlock, QKeySequence::MoveToEndOfBlock,
    QKeySequence::MoveToStartOfDocument, QKeySequence::MoveToEndOfDocument,
    QKeySequence::SelectNextChar, QKeySequence::SelectPreviousChar, QKeySequence::SelectNextWord,
    QKeySequence::SelectPreviousWord, QKeySequence::SelectNextLine,
    QKeySequence::SelectPreviousLine, QKeySequence::SelectNextPage,
    QKeySequence::SelectPreviousPage, QKeySequence::SelectStartOfLine,
    QKeySequence::SelectEndOfLine, QKeySequence::SelectStartOfBlock, QKeySequence::SelectEndOfBlock,
    QKeySequence::SelectStartOfDocument, QKeySequence::SelectEndOfDocument,
    QKeySequence::SelectAll};

bool isMovingKey(const QKeyEvent& event)
{
    return std::ranges::any_of(
        kMovingKeys, [&](auto key) { return const_cast<QKeyEvent&>(event).matches(key); });
}

/// Whether a key comes alone, whatever a keypad or a second group of the keyboard adds to it.
bool comesAlone(const QKeyEvent& event)
{
    constexpr auto kIrrelevant = Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier;
    return (event.modifiers() & ~kIrrelevant) == Qt::NoModifier;
}

bool isReturn(const QKeyEvent& event)
{
    return comesAlone(event) && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
}

// Not all desktops have it among their standard keys.
bool isBackspace(const QKeyEvent& event)
{
    return comesAlone(event) && event.key() == Qt::Key_Backspace;
}

/// What a key types; characters of AltGr come with Ctrl and Alt.
QString typedText(const QKeyEvent& event)
{
    const auto text = event.text();
    if (text.isEmpty() || !(text.at(0).isPrint() || text.at(0).isSurrogate())) return {};
    const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool isCommand = held == Qt::ControlModifier || held == Qt::AltModifier;
    return isCommand ? QString() : text;
}

} // namespace

const DesignSurface::Key* DesignSurface::keyFor(QKeyEvent& event)
{
    static constexpr Key kKeys[] = {
        {QKeySequence::Undo, &DesignSurface::undo},
        {QKeySequence::Redo, &DesignSurface::redo},
        {QKeySequence::Cut, &DesignSurface::cut},
        {QKeySequence::Paste, &DesignSurface::paste},
        {QKeySequence::Delete, &DesignSurface::deleteKey},
        {QKeySequence::DeleteStartOfWord, &DesignSurface::wordBackspace},
        {QKeySequence::DeleteEndOfWord, &DesignSurface::wordDelete},
    };
    const auto* key
        = std::ranges::find_if(kKeys, [&](const Key& row) { return event.matches(row.key); });
    return key == std::end(kKeys) ? nullptr : key;
}

/// Catches what cannot be done and tells it; the text is then as it was, and the answer false.
bool DesignSurface::trap(const std::function<void()>& action)
{
    try {
        action();
        return true;
    } catch (const Failure& failure) {
        emit failed(QString::fromStdString(toUtf8(failure.description())));
        return false;
    }
}

bool DesignSurface::editByKey(const std::function<void()>& action)
{
    emit onkeypress(told(control_ ? controlElement(*control_) : elementOf("body", {})));
    return trap(action);
}

void DesignSurface::keyPressEvent(QKeyEvent* event)
{
    const auto text = typedText(*event);
    if (const auto* key = keyFor(*event))
        editByKey([&] { (this->*key->action)(); });
    else if (event->matches(QKeySequence::Copy))
        trap([this] { copy(); });
    else if (isBackspace(*event))
        editByKey([this] { backspace(); });
    else if (isReturn(*event))
        editByKey([this] { typeReturn(); });
    else if (isMovingKey(*event)) {
        undo_.endTyping();
        const bool staysAhead = control_ && event->matches(QKeySequence::MoveToPreviousChar);
        dropControl();
        if (!staysAhead) return QTextEdit::keyPressEvent(event);
    } else if (!text.isEmpty())
        editByKey([&] { type(text, SurfaceUndo::Kind::Typing); });
    else
        return event->ignore();
    event->accept();
}

/// The tabulator in a table goes to the next cell, or back, and marks what is in it. Beyond the
/// last cell it leaves the surface, as it does outside of tables.
bool DesignSurface::focusNextPrevChild(bool next)
{
    auto cursor = textCursor();
    const auto* table = cursor.currentTable();
    if (table == nullptr) return QTextEdit::focusNextPrevChild(next);
    const auto cell = table->cellAt(cursor);
    const int number = cell.row() * table->columns() + cell.column() + (next ? 1 : -1);
    if (number < 0 || number >= table->rows() * table->columns())
        return QTextEdit::focusNextPrevChild(next);
    const auto wanted = table->cellAt(number / table->columns(), number % table->columns());
    undo_.endTyping();
    dropControl();
    cursor.setPosition(wanted.firstPosition());
    cursor.setPosition(wanted.lastPosition(), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    return true;
}

void DesignSurface::keyReleaseEvent(QKeyEvent* event)
{
    QTextEdit::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) emit onkeyup(elementOf("body", {}));
}

void DesignSurface::typeReturn()
{
    type(QStringLiteral("\n"), SurfaceUndo::Kind::Other);
}

void DesignSurface::backspace()
{
    deleteOr([this](PagePlace caret) { return deleteBackward(page_, caret); });
}

void DesignSurface::deleteKey()
{
    deleteOr([this](PagePlace caret) { return deleteForward(page_, caret); });
}

void DesignSurface::wordBackspace()
{
    if (hasSelection()) return apply(deletion());
    deleteWord(QTextCursor::PreviousWord);
}

void DesignSurface::wordDelete()
{
    if (hasSelection()) return apply(deletion());
    deleteWord(QTextCursor::NextWord);
}

// The base class shows what is being composed; what is decided becomes an edit, and the base class
// must not see it.
void DesignSurface::inputMethodEvent(QInputMethodEvent* event)
{
    const bool replaces = event->replacementLength() > 0;
    if (!event->commitString().isEmpty() || replaces)
        editByKey([&] { takeCommit(*event); });
    else if (!event->preeditString().isEmpty() && hasSelection())
        editByKey([this] { apply(deletion()); });
    QInputMethodEvent composed(event->preeditString(), event->attributes());
    QTextEdit::inputMethodEvent(&composed);
    if (!event->commitString().isEmpty()) emit onkeyup(elementOf("body", {}));
    event->accept();
}

void DesignSurface::takeCommit(const QInputMethodEvent& event)
{
    if (event.replacementLength() > 0) {
        const auto caret = textCursor().position();
        const auto block = textCursor().block();
        const int first = block.position(), last = first + block.length() - 1;
        const int begin = std::clamp(caret + event.replacementStart(), first, last);
        const int end = std::clamp(begin + event.replacementLength(), first, last);
        select({placeAtPosition(begin), placeAtPosition(end)});
    }
    if (event.commitString().isEmpty()) return apply(deletion());
    type(event.commitString(), SurfaceUndo::Kind::Typing);
}

} // namespace quillmere
