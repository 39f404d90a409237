#pragma once

#include "document/platform/memory_work_files.h"
#include "editor/design_surface.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStringList>

#include <string>
#include <string_view>

namespace quillmere::test {

/// A surface that is shown and has the focus, with keys to press. Texts are Windows-1252; "|" in
/// them is the caret, a pair of them what is marked.
class ShownSurface : public DesignSurface {
public:
    MemoryWorkFiles files;
    QStringList failures;

    ShownSurface()
        : DesignSurface(files)
    {
        resize(400, 400);
        show();
        setFocus();
        connect(
            this, &DesignSurface::failed, this, [this](const QString& text) { failures << text; });
    }

    /// Shows the text and puts the caret where the bar is, or marks what lies between two bars.
    void give(std::string text)
    {
        const auto first = take(text);
        const auto second = take(text);
        setDocumentHTML(text);
        setCaretOffset(first == std::string::npos ? 0 : first);
        if (second == std::string::npos) return;
        const int anchor = textCursor().position();
        setCaretOffset(second);
        auto cursor = textCursor();
        const int end = cursor.position();
        cursor.setPosition(anchor);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
    }

    void press(int key, Qt::KeyboardModifiers held = Qt::NoModifier, const QString& text = {})
    {
        QKeyEvent down(QEvent::KeyPress, key, held, text);
        QApplication::sendEvent(this, &down);
        QKeyEvent up(QEvent::KeyRelease, key, held, text);
        QApplication::sendEvent(this, &up);
    }

    /// Types each character by a key of its own.
    void type(const QString& text)
    {
        for (const QChar c : text)
            press(c.toUpper().unicode(), Qt::NoModifier, c);
    }

    /// The text with a bar at the caret.
    [[nodiscard]] std::string told() const
    {
        auto text = DocumentHTML();
        return text.insert(caretOffset(), 1, '|');
    }

private:
    static std::size_t take(std::string& text)
    {
        const auto bar = text.find('|');
        if (bar != std::string::npos) text.erase(bar, 1);
        return bar;
    }
};

} // namespace quillmere::test
