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
    desk.click("btnScript");
    desk.press(Qt::Key_F, kControl);
    desk.control<QPushButton>("btnAreaOne").setFocus();
    desk.press(Qt::Key_Escape); // closes the search alone
    EXPECT_TRUE(desk.window.isVisible() && !desk.isShown("objSourceSearch"));
    for (const auto& [key, area] : {std::pair(Qt::Key_PageDown, 1), {Qt::Key_PageDown, 1},
             {Qt::Key_PageUp, 0}, {Qt::Key_PageUp, 0}}) {
        desk.press(key, kControl); // as the button, in the source view too, and not beyond the ends
        EXPECT_EQ(desk.window.CurArea(), area);
        EXPECT_TRUE(desk.surface().isVisible());
    }
    desk.dialogs.paths = {QString::fromStdString(desk.folder.path() + "kopie.wml")};
    desk.press(Qt::Key_S, kControl | Qt::ShiftModifier);
    EXPECT_EQ(desk.folder.get("kopie.wml"), deckOf({"eins", "zwei"}));
    EXPECT_EQ(desk.window.windowTitle(), "kopie.wml - MORVANE Quillmere");

    int helps = 0;
    desk.window.registerForm("Help", [&](const FormCall&) { ++helps; });
    desk.press(Qt::Key_F1);
    EXPECT_EQ(helps, 1);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&desk.window, &held); // it closed a dialog
    EXPECT_TRUE(desk.window.isVisible());
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
