#pragma once

#include "editor/dialogs/element_desk.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>
#include <QWindow>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace quillmere::test {

/// A person who has nothing but the mouse and the keys: every event goes to the window on the
/// screen, which hands it on as the desktop does.
struct Author : ElementDesk {
    Author() { EXPECT_TRUE(QTest::qWaitForWindowActive(&window)); }

    static void clickOn(QWidget& control, Qt::MouseButton button = Qt::LeftButton)
    {
        clickAt(control, control.rect().center(), button);
    }
    static void clickAt(QWidget& control, QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        auto* top = control.window();
        QTest::mouseClick(top->windowHandle(), button, {}, control.mapTo(top, point));
    }
    static void key(QWidget& control, int code, Qt::KeyboardModifiers held = {})
    {
        QTest::keyClick(control.window()->windowHandle(), static_cast<Qt::Key>(code), held);
    }
    static void write(QWidget& control, const QString& text)
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, control.window()->windowHandle(),
                static_cast<Qt::Key>(c.toUpper().unicode()), c, {});
    }

    // In a form.
    static void fill(QWidget& form, const char* field, const QString& text)
    {
        auto& edit = test::control<QLineEdit>(form, field);
        clickOn(edit);
        key(edit, Qt::Key_A, Qt::ControlModifier);
        key(edit, Qt::Key_Delete);
        write(edit, text);
    }
    static void pick(QWidget& form, const char* list, int index)
    {
        auto& combo = test::control<QComboBox>(form, list);
        clickOn(combo);
        const auto entry = combo.view()->visualRect(combo.model()->index(index, 0));
        clickAt(*combo.view()->viewport(), entry.center());
        EXPECT_EQ(combo.currentIndex(), index);
    }

    // In the main window.
    void key(int code, Qt::KeyboardModifiers held = {}) { key(window, code, held); }
    void write(const QString& text) { write(window, text); }
    /// A tool whose click opens a form.
    void tool(const char* name, std::function<void(QWidget&)> form)
    {
        withNextModal(std::move(form));
        clickOn(control<QWidget>((std::string("lblButton") + name).c_str()));
        backToWindow();
    }
    /// Entries of a tool's menu, or of the surface's at the caret, from the outermost to the one
    /// that opens a form.
    void menuOfTool(
        const char* name, const std::vector<QString>& entries, std::function<void(QWidget&)> form)
    {
        clickOn(control<QWidget>((std::string("lblButton") + name).c_str()));
        chooseFromMenu(entries, std::move(form));
    }
    void menuOn(const QString& text, const std::vector<QString>& entries,
        std::function<void(QWidget&)> form)
    {
        clickAt(*surface().viewport(), middleOf(text), Qt::RightButton);
        chooseFromMenu(entries, std::move(form));
    }
    void doubleClickOn(const QString& text, std::function<void(QWidget&)> form)
    {
        withNextModal(std::move(form));
        auto* top = &window;
        const auto point = surface().viewport()->mapTo(top, middleOf(text));
        QTest::mouseDClick(top->windowHandle(), Qt::LeftButton, {}, point);
        backToWindow();
    }
    /// Drags the mouse over a text.
    void markWithMouse(const QString& text)
    {
        const auto found = find(text);
        auto* handle = window.windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, onWindow(found.selectionStart()));
        QTest::mouseMove(handle, onWindow(found.selectionStart()) + QPoint(12, 0));
        QTest::mouseMove(handle, onWindow(found.selectionEnd()));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, onWindow(found.selectionEnd()));
        EXPECT_EQ(surface().selectedText(), text);
    }
    void clickBehind(const QString& text)
    {
        QTest::mouseClick(
            window.windowHandle(), Qt::LeftButton, {}, onWindow(find(text).selectionEnd()));
    }

private:
    [[nodiscard]] QTextCursor find(const QString& text)
    {
        const auto found = surface().document()->find(text);
        if (found.isNull()) throw std::runtime_error("not on the surface: " + text.toStdString());
        return found;
    }
    [[nodiscard]] QPoint onWindow(int position)
    {
        QTextCursor cursor(surface().document());
        cursor.setPosition(position);
        return surface().viewport()->mapTo(&window, surface().cursorRect(cursor).center());
    }
    [[nodiscard]] QPoint middleOf(const QString& text)
    {
        const auto found = find(text);
        const auto point = (onWindow(found.selectionStart()) + onWindow(found.selectionEnd())) / 2;
        return surface().viewport()->mapFrom(&window, point);
    }
    void chooseFromMenu(const std::vector<QString>& entries, std::function<void(QWidget&)> form)
    {
        for (const auto& entry : entries) {
            if (entry == entries.back()) withNextModal(std::exchange(form, nullptr));
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) throw std::runtime_error("no menu for " + entry.toStdString());
            clickAt(*menu, menu->actionGeometry(actionOf(*menu, entry)).center());
        }
        backToWindow();
    }
    static QAction* actionOf(const QMenu& menu, const QString& text)
    {
        for (auto* action : menu.actions())
            if (action->text() == text && action->isEnabled()) return action;
        throw std::runtime_error("cannot be chosen: " + text.toStdString());
    }
    void backToWindow()
    {
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        window.activateWindow(); // there is no desktop that would do it
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QApplication::processEvents();
    }
};

} // namespace quillmere::test
