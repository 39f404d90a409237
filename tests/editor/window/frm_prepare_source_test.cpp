#include "editor/window/window_desk.h"

#include "document/platform/word_ids.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quillmere::test {
namespace {

struct SourceDesk : WindowDesk {
    SourceEdit& source = control<SourceEdit>("txtScript");

    explicit SourceDesk(const std::vector<std::string>& cards = {"eins", "zwei"})
    {
        openCards(cards);
        click("btnScript");
    }
    /// Puts text in behind another one, by keys.
    void typeBehind(const char* there, const QString& text)
    {
        source.moveCursor(QTextCursor::Start);
        ASSERT_TRUE(source.find(QLatin1String(there)));
        auto cursor = source.textCursor();
        cursor.clearSelection();
        source.setTextCursor(cursor);
        source.setFocus();
        type(text);
    }
    void setSource(const std::vector<std::string>& cards)
    {
        source.selectAll();
        source.insertPlainText(QString::fromStdString(deckOf(cards)));
    }
};

TEST(WindowSource, AnEditReplacesAllAreasOnceItIsAssentedTo)
{
    SourceDesk desk;
    desk.typeBehind("eins", " neu");
    std::vector<bool> stored;
    desk.session.afterStore = [&](bool changed) { stored.push_back(changed); };
    desk.messages.answers = {true};
    desk.click("btnAreaOne");
    EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"ask 41"});
    EXPECT_EQ(stored, std::vector<bool>{true}) << "the areas have other work files now";
    EXPECT_NE(desk.design(0).find("eins neu"), std::string::npos);
    EXPECT_TRUE(desk.window.docChanged());
    desk.choose("mnuSave");
    EXPECT_EQ(desk.saved(), deckOf({"eins neu", "zwei"}));
}

TEST(WindowSource, NoWhileMovingOnDropsTheTextAndUndoCanBringItBack)
{
    SourceDesk desk;
    desk.typeBehind("zwei", QStringLiteral("\u00a0!")); // a hard blank stays one
    desk.messages.answers = {false};
    desk.click("btnAreaNext");
    EXPECT_EQ(desk.window.CurArea(), 1);
    EXPECT_NE(desk.surface().DocumentHTML().find("zwei<"), std::string::npos);

    desk.click("btnScript");
    EXPECT_EQ(desk.source.wml(), deckOf({"eins", "zwei"}));
    desk.messages.log.clear();
    desk.messages.answers = {true};
    desk.click("lblButtonUndo");
    EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"ask 45"});
    EXPECT_EQ(desk.source.wml(), deckOf({"eins", "zwei\xA0!"}));
}

TEST(WindowSource, WhatIsTypedIsKeptInAWorkFileUntilItIsTakenOrDropped)
{
    for (const bool isTaken : {true, false}) {
        SCOPED_TRACE(isTaken);
        SourceDesk desk;
        std::vector<std::string> noted; // the text of the source at each store
        desk.session.afterStore = [&](bool) {
            const auto& path = desk.session.sourcePath;
            noted.push_back(path.empty() ? "" : desk.workFiles.read(path));
        };
        desk.typeBehind("eins", "1");
        ASSERT_TRUE(QTest::qWaitFor([&] { return !noted.empty(); }, 2000));
        EXPECT_EQ(noted.back(), deckOf({"eins1", "zwei"}));
        desk.messages.answers = {isTaken};
        desk.click("btnAreaOne");
        EXPECT_EQ(noted.back(), "");
        EXPECT_FALSE(std::filesystem::exists(desk.workFiles.directory() + "Source0.txt"));
    }
}

TEST(WindowSource, GoesOnWithATextThatWasNeverTaken)
{
    SourceDesk desk;
    desk.click("btnScript");
    desk.window.resumeSource("<wml>halb ge\r\n");
    EXPECT_TRUE(desk.source.isVisible());
    EXPECT_EQ(desk.source.wml(), "<wml>halb ge\r\n");
    EXPECT_TRUE(desk.window.docChanged());
    EXPECT_EQ(desk.workFiles.read(desk.session.sourcePath), "<wml>halb ge\r\n");
    desk.click("lblButtonUndo");
    EXPECT_EQ(desk.source.wml(), deckOf({"eins", "zwei"}));
}

TEST(WindowSource, UndoTakesWordsBackAndKeepsTheFirstTwoPlaces)
{
    SourceDesk desk;
    desk.typeBehind("eins", " ab cd");
    const char* const left[] = {"eins ab", "eins", "eins"};
    for (const char* text : left) {
        desk.click("lblButtonUndo");
        EXPECT_EQ(desk.source.wml(), deckOf({text, "zwei"}));
    }
}

TEST(WindowSource, SavingTakesTheTextAsItStandsAndAsksNothing)
{
    SourceDesk desk;
    desk.typeBehind("eins", "1");
    EXPECT_TRUE(desk.window.docChanged());
    desk.choose("mnuSave");
    EXPECT_EQ(desk.saved(), deckOf({"eins1", "zwei"}));
    EXPECT_TRUE(desk.source.isVisible());
    // what is typed and dropped behind it takes nothing of the saved text along
    desk.typeBehind("eins1", "2");
    desk.messages.answers = {false};
    desk.click("btnAreaOne");
    EXPECT_NE(desk.design(0).find("eins1<"), std::string::npos);
    EXPECT_NE(desk.surface().DocumentHTML().find("eins1<"), std::string::npos);
}

TEST(WindowSource, WhatWasTakenStaysAChangeUntilTheFileHasIt)
{
    SourceDesk desk;
    desk.typeBehind("eins", "1");
    const auto file = desk.folder.path() + "deck.wml";
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    desk.messages.answers = {true, true}; // to save, to make the file anew
    desk.window.close();
    EXPECT_TRUE(desk.messages.taken().back().starts_with("failure: "));
    EXPECT_TRUE(desk.source.isVisible());
    desk.click("btnAreaOne");
    EXPECT_TRUE(desk.messages.log.empty());
    EXPECT_NE(desk.surface().DocumentHTML().find("eins1"), std::string::npos);
    EXPECT_TRUE(desk.window.docChanged());
}

TEST(WindowSource, ATextThatCannotBeADeckStaysInTheView)
{
    SourceDesk desk;
    const auto open = desk.source.wml();
    const std::tuple<const char*, QString> rows[] = {
        {"too long", QString(40000, 'x')},
        {"a value that never ends", "<wml><card id=\"a\"><p><img src=\"x></p></card></wml>"},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        desk.source.selectAll();
        desk.source.insertPlainText(text);
        desk.messages.answers = {true};
        desk.click("btnAreaOne");
        const auto told = desk.messages.taken();
        ASSERT_EQ(told.size(), 2U);
        EXPECT_TRUE(told[1].starts_with("failure: ")) << told[1];
        EXPECT_TRUE(desk.source.isVisible());
        EXPECT_EQ(desk.source.toPlainText(), text);
        EXPECT_NE(desk.design(1).find("zwei"), std::string::npos);
    }
}

} // namespace
} // namespace quillmere::test
