#pragma once

#include "editor/window/element_forms.h"
#include "editor/window/window_desk.h"
#include "gui/modal.h"

#include <QLineEdit>

#include <functional>
#include <string>

namespace quillmere::test {

/// The main window with the dialogs of elements, which its tools open.
struct ElementDesk : WindowDesk {
    explicit ElementDesk(const std::string& skins = "Skins")
        : WindowDesk(skins)
    {
        registerElementForms(window, session);
        settings.WriteSetting("ShowOptionMessage", "No");
    }

    /// The content of an area, between its head and its tail.
    [[nodiscard]] std::string content(int area = 0)
    {
        const auto text = design(area);
        const auto begin = text.find('>', text.find("<BODY")) + 1;
        return text.substr(begin, text.find("</BODY>") - begin);
    }
    /// Where the surface's caret stands, as the content with a bar there.
    [[nodiscard]] std::string contentWithCaret()
    {
        auto text = surface().DocumentHTML();
        text.insert(surface().caretOffset(), 1, '|');
        const auto begin = text.find('>', text.find("<BODY")) + 1;
        return text.substr(begin, text.find("</BODY>") - begin);
    }
    /// Marks a text of the surface.
    void mark(const char* text)
    {
        surface().moveCursor(QTextCursor::Start);
        ASSERT_TRUE(surface().find(QString::fromUtf8(text)));
    }
    /// Chooses a tool or an entry of a menu and uses the form that comes up.
    void use(const std::string& entry, std::function<void(QWidget&)> form)
    {
        withNextModal(std::move(form));
        if (entry.starts_with("lbl"))
            click(entry.c_str());
        else
            choose(entry.c_str());
        window.activateWindow();
        surface().setFocus();
        QApplication::processEvents();
    }
};

inline void type(QWidget& form, const char* field, const QString& text)
{
    auto& control = test::control<QLineEdit>(form, field);
    form.activateWindow();
    control.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return control.hasFocus(); }, 2000)) << field;
    control.selectAll();
    QTest::keyClicks(&control, text);
}

inline QString textOf(QWidget& form, const char* field)
{
    return test::control<QLineEdit>(form, field).text();
}

} // namespace quillmere::test
