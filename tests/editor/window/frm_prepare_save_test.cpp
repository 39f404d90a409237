#include "document/text/failure.h"
#include "editor/window/deck_costs.h"
#include "editor/window/window_desk.h"
#include "gui/modal.h"
#include "support/stopwatch.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

namespace quillmere::test {
namespace {

TEST(Closing, WhatCannotBeSavedKeepsTheWindowOpen)
{
    WindowDesk desk;
    const auto folder = desk.folder.path() + "deck/";
    std::filesystem::create_directory(folder);
    desk.folder.put("deck/deck.wml", deckOf({"x"}));
    OpenDocument(desk.session, "deck.wml", folder);
    desk.caretBehind(">x");
    desk.type("y");
    std::filesystem::rename(folder, desk.folder.path() + "moved");
    desk.messages.answers = {true, true}; // to save, to make the file anew
    desk.window.close();
    EXPECT_TRUE(desk.window.isVisible());
    EXPECT_TRUE(desk.messages.log.back().starts_with("failure: "));
    EXPECT_TRUE(desk.window.docChanged());
    EXPECT_NE(desk.surface().DocumentHTML().find(">xy<"), std::string::npos);
}

TEST(Saving, SaysSoBeforeItGoesOverAnotherProgramsText)
{
    WindowDesk desk;
    desk.openCards({"x"});
    desk.caretBehind(">x");
    desk.type("y");
    desk.folder.put("deck.wml", "<wml>fremd</wml>");
    desk.messages.answers = {false};
    desk.choose("mnuSave");
    ASSERT_EQ(desk.messages.log.size(), 2U);
    EXPECT_EQ(desk.messages.log[0], "ask 205: deck.wml");
    EXPECT_EQ(desk.saved(), "<wml>fremd</wml>");
    EXPECT_TRUE(desk.window.docChanged());
    desk.messages.answers = {true};
    desk.choose("mnuSave");
    EXPECT_EQ(desk.saved(), deckOf({"xy"}));
    desk.caretBehind(">xy");
    desk.type("z");
    desk.choose("mnuSave"); // its own text is no other program's
    EXPECT_EQ(desk.saved(), deckOf({"xyz"}));
}

void drop(const WindowDesk& desk, QWidget* target, const char* name)
{
    QMimeData clip;
    clip.setUrls({QUrl::fromLocalFile(QString::fromStdString(desk.folder.path() + name))});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &clip, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event({9, 9}, Qt::CopyAction, &clip, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

TEST(Dropping, OpensADeckAndRefusesOneThatIsTooLong)
{
    WindowDesk desk;
    desk.openCards({"x"});
    desk.folder.put("neu.WML", deckOf({"neu"}));
    desk.folder.put("lang.wml", deckOf({std::string(40000, 'x')}));
    drop(desk, desk.surface().viewport(), "neu.WML");
    EXPECT_NE(desk.design(0).find("neu"), std::string::npos);
    desk.messages.answers = {false}; // without loss it could be opened
    drop(desk, &desk.window, "lang.wml");
    EXPECT_NE(desk.design(0).find("neu"), std::string::npos);
    ASSERT_EQ(desk.messages.log.size(), 1U);
    EXPECT_NE(desk.messages.log[0].find("zu lang"), std::string::npos);
}

/// A deck that loses things by the default; its texts are in UTF-8.
constexpr const char* kForm
    = "<?xml version=\"1.0\"?>\n<wml>\n"
      "<template><do type=\"prev\" label=\"Zur\xC3\xBC"
      "ck\"><prev/></do></template>\n"
      "<card id=\"a\" title=\"Ort\" ontimer=\"#b\">\n\t<timer value='50'/>\r\n"
      "<p>Caf\xC3\xA9 <input name=\"ort\"/><input name=\"tag\" format=\"NN\"/></p>\n</card>\n"
      "<card id=\"b\"><p>Ende</p></card>\n</wml>";

/// Puts the one in place of the other, which is there once.
std::string with(std::string text, const std::string& before, const std::string& after)
{
    return text.replace(text.find(before), before.size(), after);
}

void typeAndSave(WindowDesk& desk, const char* there)
{
    desk.window.activateWindow(); // a form may have stood there
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desk.window));
    desk.caretBehind(there);
    desk.type("x");
    desk.choose("mnuSave");
}

TEST(Costs, AreToldOnceForADeckByTheirKinds)
{
    WindowDesk desk;
    desk.openCards({"nichts"});
    EXPECT_TRUE(desk.costs.empty());
    desk.open(kForm);
    ASSERT_EQ(desk.costs.size(), 1U);
    const auto& costs = desk.costs[0];
    const auto fields = std::ranges::find(costs, "Eingabefelder <input>", &DeckCost::name);
    ASSERT_NE(fields, costs.end());
    EXPECT_EQ(fields->count, 2U);
    EXPECT_EQ(fields->examples.front(), "Zeile 6: <input name=\"ort\"/>");
    desk.click("btnAreaOne");
    EXPECT_EQ(desk.costs.size(), 1U);
    typeAndSave(desk, "Caf");
    EXPECT_EQ(desk.saved().find("<input"), std::string::npos) << "as told";
}

TEST(Costs, AreAvoidedForOneDeckOrForAllByTheFormsButtons)
{
    for (const bool isAlways : {false, true}) {
        SCOPED_TRACE(isAlways);
        WindowDesk desk;
        desk.window.askAboutCosts = [&](const DeckCosts& costs) {
            desk.costs.push_back(costs);
            return frmDeckChanges::ask(desk.session, costs, &desk.window);
        };
        const auto* button = isAlways ? "btnStandardAlways" : "btnStandardOnce";
        withNextModal([&](QWidget& form) { click(form, button); });
        desk.open(kForm);
        EXPECT_EQ(isYes(desk.settings, "StandardOutput"), isAlways);
        typeAndSave(desk, "Caf");
        EXPECT_EQ(desk.saved(), with(kForm, "Caf", "Cafx"));
        desk.folder.put("fort.wml", std::string(40000, 'x'));
        if (!isAlways) { // a deck that cannot be opened leaves this one and its rules
            desk.messages.answers = {false};
            OpenDocument(desk.session, "fort.wml", desk.folder.path());
        }
        EXPECT_TRUE(desk.session.document.output.losesNothing());
        if (!isAlways) withNextModal([](QWidget& form) { click(form, "btnKeep"); });
        desk.open(kForm); // the next one goes by the setting
        EXPECT_EQ(desk.costs.size(), isAlways ? 1U : 2U);
        EXPECT_EQ(desk.session.document.output.losesNothing(), isAlways);
    }
}

struct StandardDesk : WindowDesk {
    std::vector<QStringList> mends; ///< that were told
    bool mayMend = false;

    explicit StandardDesk(const std::string& file)
    {
        settings.WriteSetting("StandardOutput", "Yes");
        window.askAboutMends = [this](const QStringList& told) {
            mends.push_back(told);
            return mayMend;
        };
        open(file);
    }
};

const std::string kBroken = "<wml>\n<card id=\"a\">\n<p>eins <b>zwei</p>\n</card></wml>\n";

TEST(Mends, AreAskedForBeforeASaveThatMakesThemAndOnceOnly)
{
    StandardDesk desk(kBroken);
    desk.window.setDocChanged(true);
    desk.choose("mnuSave"); // nothing was edited
    EXPECT_TRUE(desk.mends.empty());
    EXPECT_EQ(desk.saved(), kBroken);

    typeAndSave(desk, "eins");
    ASSERT_EQ(desk.mends.size(), 1U);
    EXPECT_EQ(desk.mends[0], QStringList("Zeile 3: Ein fehlendes Ende wurde ergänzt: </b>"));
    EXPECT_EQ(desk.saved(), kBroken);
    EXPECT_TRUE(desk.window.docChanged());
    EXPECT_NE(desk.surface().DocumentHTML().find("einsx"), std::string::npos);

    desk.mayMend = true;
    typeAndSave(desk, "einsx");
    EXPECT_EQ(desk.mends.size(), 2U);
    EXPECT_EQ(desk.saved(), with(with(kBroken, "eins", "einsxx"), "</p>", "</b></p>"));
    EXPECT_FALSE(desk.window.docChanged());
    typeAndSave(desk, "einsxx");
    EXPECT_EQ(desk.mends.size(), 2U);
}

TEST(Mends, OfTheSurfacesTextAreNotForgottenInTheSourceView)
{
    StandardDesk desk(kBroken);
    auto& source = desk.control<SourceEdit>("txtScript");
    const auto typeInSource = [&] {
        desk.click("btnScript");
        source.find("zwei");
        source.setFocus();
        desk.type("drei");
        desk.choose("mnuSave");
    };
    typeInSource(); // a person's own text is the person's, faults included
    EXPECT_TRUE(desk.mends.empty());
    EXPECT_EQ(desk.saved(), with(kBroken, "zwei", "drei"));

    desk.open(kBroken);
    desk.caretBehind("eins");
    desk.type("x");
    typeInSource();
    EXPECT_EQ(desk.mends.size(), 1U);
    EXPECT_EQ(desk.saved(), kBroken);
}

TEST(Costs, OfALargeDeckAreKnownInABlink)
{
    WindowDesk desk;
    std::vector<std::string> cards;
    while (cards.size() < 20)
        cards.push_back("M\xF6hren, <b>ein</b> B\xFCndchen<br/>" + std::string(1400, 'm'));
    const auto deck = deckOf(cards);
    ASSERT_GT(deck.size(), 29000U);
    const auto tell = [&] {
        EXPECT_FALSE(costsOfSaving(desk.session.document, deck, desk.folder.path()).empty());
    };
    EXPECT_LT(millisecondsOf(tell, 5), 100);
}

TEST(Speed, TheNextAreaIsPaintedWithin30Milliseconds)
{
    WindowDesk desk;
    std::string card;
    for (int i = 0; i < 60; ++i)
        card += "Zeile mit <b>Text</b> und <a href=\"#a\">Sprung</a>, noch mehr Text<br/>";
    desk.openCards({card, card, card, card, card});
    const auto showNext = [&] {
        desk.click(desk.isEnabled("btnAreaNext") ? "btnAreaNext" : "btnAreaPrev");
        desk.window.repaint();
    };
    std::vector<double> milliseconds; // of the processor, so that a busy machine changes little
    while (milliseconds.size() < 20)
        milliseconds.push_back(millisecondsOf(showNext));
    std::ranges::sort(milliseconds);
    EXPECT_LT(milliseconds[10], 30);
}

} // namespace
} // namespace quillmere::test
