#pragma once

#include "document/deck_store.h"
#include "document/design_text.h"
#include "editor/window/frm_prepare.h"
#include "gui/window_session.h"
#include "project/deck_files.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <string>
#include <vector>

namespace quillmere::test {

/// A deck of cards with these texts, "a", "b", ... by their ids. What the default writes of it is
/// the same again.
inline std::string deckOf(const std::vector<std::string>& texts)
{
    std::string wml = "<?xml version=\"1.0\"?>\r\n<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML "
                      "1.1//EN\" \"http://www.wapforum.org/DTD/wml_1.1.xml\">\r\n<wml>\r\n";
    char id = 'a';
    for (const auto& text : texts) {
        wml += std::string("<card id=\"") + id + "\" title=\"Karte " + id + "\">\r\n";
        wml += "<p align=\"left\">" + text + "</p>\r\n</card>\r\n";
        ++id;
    }
    return wml + "</wml>\r\n";
}

/// The main window with real controls, and a person with prepared answers.
struct WindowDesk : WindowSession {
    frmPrepare window{session, workFiles};
    std::vector<DeckCosts> costs; ///< that were told
    CostsAnswer costsAnswer = CostsAnswer::Keep;

    explicit WindowDesk(const std::string& skins = "Skins")
        : WindowSession(skins)
    {
        ReadEditorSkins(session.skins, settings);
        window.askAboutCosts = [this](const DeckCosts& told) {
            costs.push_back(told);
            return costsAnswer;
        };
        window.Form_Load();
        window.applySkin();
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }
    ~WindowDesk() { window.hide(); }
    WindowDesk(const WindowDesk&) = delete;
    WindowDesk& operator=(const WindowDesk&) = delete;
    WindowDesk(WindowDesk&&) = delete;
    WindowDesk& operator=(WindowDesk&&) = delete;

    void open(const std::string& wml)
    {
        folder.put("deck.wml", wml);
        OpenDocument(session, "deck.wml", folder.path());
        QApplication::processEvents();
    }
    void openCards(const std::vector<std::string>& texts) { open(deckOf(texts)); }
    [[nodiscard]] std::string saved() const { return folder.get("deck.wml"); }

    template <class Control> [[nodiscard]] Control& control(const char* name)
    {
        auto* found = window.findChild<Control*>(QLatin1String(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    [[nodiscard]] DesignSurface& surface() { return window.surface(); }
    [[nodiscard]] std::string design(int area)
    {
        return ReadDesignText(session.document, static_cast<std::size_t>(area));
    }
    [[nodiscard]] QString caption() { return control<QLabel>("lblCurAreaCaption").text(); }
    [[nodiscard]] bool isEnabled(const char* name) { return control<QWidget>(name).isEnabled(); }
    [[nodiscard]] bool isShown(const char* name) { return control<QWidget>(name).isVisible(); }

    void click(const char* button) { control<QAbstractButton>(button).click(); }
    void choose(const char* entry) { control<QAction>(entry).trigger(); }

    void press(int key, Qt::KeyboardModifiers held = Qt::NoModifier, const QString& text = {})
    {
        auto* focus = QApplication::focusWidget();
        QWidget* target = focus != nullptr && window.isAncestorOf(focus) ? focus : &window;
        QTest::sendKeyEvent(QTest::Click, target, static_cast<Qt::Key>(key), text, held);
    }
    /// Types into what has the focus.
    void type(const QString& text)
    {
        for (const QChar c : text)
            press(c.toUpper().unicode(), Qt::NoModifier, c);
    }
    /// Puts the caret behind a text of the surface.
    void caretBehind(const char* text)
    {
        const auto& shown = surface().DocumentHTML();
        surface().setCaretOffset(shown.find(text) + std::string_view(text).size());
        surface().setFocus();
    }
};

} // namespace quillmere::test
