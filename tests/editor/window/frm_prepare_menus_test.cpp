#include "editor/window/window_desk.h"

#include "project/recent_decks.h"

#include <gtest/gtest.h>

namespace quillmere::test {
namespace {

constexpr auto kControl = Qt::ControlModifier;

TEST(Keys, DoWhatPeopleExpect)
{
    WindowDesk desk;
    desk.openCards({"eins", "zwei"});
    desk.press(Qt::Key_PageDown, kControl);
    EXPECT_EQ(desk.window.CurArea(), 1);
    desk.press(Qt::Key_PageDown, kControl); // there is no further area
    EXPECT_EQ(desk.window.CurArea(), 1);
    desk.press(Qt::Key_PageUp, kControl);
    EXPECT_EQ(desk.window.CurArea(), 0);
    desk.click("btnScript");
    desk.press(Qt::Key_F, kControl);
    desk.control<QPushButton>("btnAreaOne").setFocus();
    desk.press(Qt::Key_Escape); // closes the search alone
    EXPECT_TRUE(desk.window.isVisible());
    EXPECT_FALSE(desk.isShown("objSourceSearch"));
    desk.press(Qt::Key_PageDown, kControl); // as the button
    EXPECT_EQ(desk.window.CurArea(), 1);
    EXPECT_TRUE(desk.surface().isVisible());
    desk.press(Qt::Key_PageUp, kControl);

    desk.caretBehind("eins");
    desk.type("!");
    desk.press(Qt::Key_S, kControl);
    EXPECT_EQ(desk.saved(), deckOf({"eins!", "zwei"}));

    const auto other = QString::fromStdString(desk.folder.put("other.wml", deckOf({"anders"})));
    desk.dialogs.paths = {other};
    desk.press(Qt::Key_O, kControl);
    EXPECT_NE(desk.surface().DocumentHTML().find("anders"), std::string::npos);
    desk.dialogs.paths = {QString::fromStdString(desk.folder.path() + "kopie.wml")};
    desk.press(Qt::Key_S, kControl | Qt::ShiftModifier);
    EXPECT_EQ(desk.folder.get("kopie.wml"), deckOf({"anders"}));
    EXPECT_EQ(desk.window.windowTitle(), "kopie.wml - MORVANE Quillmere");

    std::vector<std::string> opened;
    desk.window.registerForm(
        "frmAskProjektDir", [&](const FormCall&) { opened.emplace_back("new"); });
    desk.window.registerForm("Help", [&](const FormCall&) { opened.emplace_back("help"); });
    desk.press(Qt::Key_N, kControl);
    desk.press(Qt::Key_F1);
    EXPECT_EQ(opened, (std::vector<std::string>{"new", "help"}));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&desk.window, &held); // it closed a dialog
    EXPECT_TRUE(desk.window.isVisible());
}

TEST(Menus, TakeTheirTextsFromTheResources)
{
    const char* const rows[][3]
        = {{"Skins", "Speichern", "1 von 2"}, {"Skins.en", "Save", "1 of 2"}};
    for (const auto& [skins, save, of] : rows) {
        SCOPED_TRACE(skins);
        WindowDesk desk(skins);
        desk.openCards({"eins", "zwei"});
        EXPECT_EQ(desk.control<QAction>("mnuSave").text(), save);
        EXPECT_EQ(desk.control<QPushButton>("btnAreaOne").text(), of);
    }
}

TEST(Menus, OfferTheDecksThatWereOpenLast)
{
    WindowDesk desk;
    desk.openCards({"eins"});
    const auto place = desk.folder.put("unter/zwei.wml", deckOf({"zwei"}));
    RecentDecks(desk.settings).add(place);
    const auto choose = [&] {
        desk.click("lblButtonSeiteNew");
        auto& menu = desk.control<QMenu>("mnuContextOpen");
        ASSERT_TRUE(menu.isVisible());
        menu.hide();
        for (auto* entry : menu.actions())
            if (entry->text() == "unter / zwei.wml") return entry->trigger();
        FAIL() << "no such deck";
    };
    choose();
    EXPECT_NE(desk.surface().DocumentHTML().find("zwei"), std::string::npos);
    desk.openCards({"eins"});
    std::filesystem::remove(place);
    choose();
    ASSERT_EQ(desk.messages.log.size(), 1U);
    EXPECT_TRUE(desk.messages.log[0].starts_with("failure: "));
    EXPECT_NE(desk.surface().DocumentHTML().find("eins"), std::string::npos);
}

} // namespace
} // namespace quillmere::test
