#include "editor/window/window_desk.h"

#include <gtest/gtest.h>

namespace quillmere::test {
namespace {

TEST(Areas, ButtonsAndNotesTellWhereOneIs)
{
    WindowDesk desk;
    for (const auto* button : {"btnScript", "btnAreaPrev", "btnAreaOne", "btnAreaNext"})
        EXPECT_FALSE(desk.isEnabled(button)) << button;
    EXPECT_EQ(desk.caption(), "Kein Dokument geöffnet");
    EXPECT_FALSE(desk.isShown("lblToolTipAreaNext"));

    desk.openCards({"eins", "zwei", "drei"});
    const char* const rows[][4] = {
        // what is clicked, the caption, the button, and which ways there are
        {"", "Bereich 1: Karte a", "1 von 3", ">"},
        {"btnAreaNext", "Bereich 2: Karte b", "2 von 3", "<>"},
        {"btnAreaNext", "Bereich 3: Karte c", "3 von 3", "<"},
        {"btnAreaPrev", "Bereich 2: Karte b", "2 von 3", "<>"},
    };
    for (const auto& [click, caption, one, ways] : rows) {
        SCOPED_TRACE(caption);
        if (*click != '\0') desk.click(click);
        EXPECT_EQ(desk.caption(), caption);
        EXPECT_EQ(desk.control<QPushButton>("btnAreaOne").text(), one);
        std::string shown = desk.isEnabled("btnAreaPrev") ? "<" : "";
        shown += desk.isEnabled("btnAreaNext") ? ">" : "";
        EXPECT_EQ(shown, ways);
        EXPECT_NE(desk.isShown("lblToolTipForbtnAreaPrev"), desk.isEnabled("btnAreaPrev"));
        EXPECT_NE(desk.isShown("lblToolTipAreaNext"), desk.isEnabled("btnAreaNext"));
        EXPECT_TRUE(desk.surface().hasFocus());
    }
    desk.openCards({"allein"});
    EXPECT_TRUE(desk.isShown("lblToolTipForbtnAreaPrev") && desk.isShown("lblToolTipAreaNext"));
}

TEST(Areas, AChangeStaysInItsAreaAndComesIntoTheFile)
{
    WindowDesk desk;
    desk.openCards({"eins", "zwei"});
    desk.caretBehind("eins");
    desk.type(" und");
    desk.press(Qt::Key_PageDown, Qt::ControlModifier);
    ASSERT_EQ(desk.window.CurArea(), 1);
    EXPECT_NE(desk.design(0).find("eins und"), std::string::npos);
    EXPECT_EQ(desk.design(1).find("und"), std::string::npos);
    EXPECT_EQ(desk.saved(), deckOf({"eins", "zwei"}));
    EXPECT_TRUE(desk.window.windowTitle().startsWith("deck.wml *"));

    desk.caretBehind("zwei");
    desk.type("!");
    desk.choose("mnuSave");
    EXPECT_EQ(desk.saved(), deckOf({"eins und", "zwei!"}));
    EXPECT_EQ(desk.window.windowTitle(), "deck.wml - MORVANE Quillmere");
    EXPECT_FALSE(desk.window.docChanged());
}

TEST(Areas, UndoGoesBackToTheStateOfTheStart)
{
    WindowDesk desk;
    desk.openCards({"x"});
    const auto atStart = desk.surface().DocumentHTML();
    desk.caretBehind(">x");
    desk.type("abc");
    for (const char* left : {"xab", "xa", "x"}) {
        desk.click("lblButtonUndo");
        const auto shown = std::string(">") + left;
        EXPECT_NE(desk.design(0).find(shown + "</"), std::string::npos) << left;
        const auto& text = desk.surface().DocumentHTML();
        EXPECT_EQ(desk.surface().caretOffset(), text.find(shown) + shown.size());
    }
    desk.click("lblButtonUndo");
    EXPECT_EQ(desk.surface().DocumentHTML(), atStart);
}

TEST(Areas, TheKeyTakesBackWhatWasTypedAndTheButtonGoesOnFromThere)
{
    WindowDesk desk;
    desk.openCards({"x"});
    desk.caretBehind(">x");
    desk.type("abc");
    desk.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(desk.surface().DocumentHTML().find(">x</"), std::string::npos);
    desk.press(Qt::Key_Z, Qt::ControlModifier); // nothing comes back
    EXPECT_NE(desk.surface().DocumentHTML().find(">x</"), std::string::npos);
    desk.type("q");
    desk.click("lblButtonUndo");
    EXPECT_NE(desk.surface().DocumentHTML().find(">x</"), std::string::npos);
}

TEST(Areas, AWorkFileThatVanishedKeepsTheAreaWhereItIs)
{
    WindowDesk desk;
    desk.openCards({"eins", "zwei"});
    const auto& second = desk.session.document.deck[1];
    desk.workFiles.remove(second.designDir + second.designFile);
    desk.caretBehind("eins");
    desk.type("!");
    desk.click("btnAreaNext");
    ASSERT_EQ(desk.messages.log.size(), 1U);
    EXPECT_TRUE(desk.messages.log[0].starts_with("failure: ")) << desk.messages.log[0];
    EXPECT_EQ(desk.window.CurArea(), 0);
    EXPECT_TRUE(desk.isEnabled("btnAreaNext"));
    EXPECT_NE(desk.surface().DocumentHTML().find("eins!"), std::string::npos);
}

} // namespace
} // namespace quillmere::test
