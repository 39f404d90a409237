#include "project/deck_files.h"

#include "document/card_attributes.h"
#include "document/deck_store.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"
#include "project/deck_dialogs.h"
#include "project/deck_names.h"
#include "project/recent_decks.h"
#include "project_dialogs/scripted_window.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace quillmere {
namespace {

using test::DeckDesk;
using test::deckOf;
using Log = std::vector<std::string>;

/// Everything that a failure must leave alone.
Log stateOf(DeckDesk& desk)
{
    auto state = RecentDecks(desk.settings).paths();
    const auto& deck = desk.deck();
    for (std::size_t i = 0; i < areaCount(deck); ++i)
        state.push_back(desk.area(i));
    if (!deck.empty()) {
        state.push_back(deck.front().deckDir + deck.front().deckFile);
        const auto pristine = deck.front().pristineDir + deck.front().pristineFile;
        if (!pristine.empty()) state.push_back(desk.workFiles.read(pristine));
    }
    state.emplace_back(desk.window.isChanged ? "changed" : "");
    state.push_back(std::to_string(desk.session.document.currentArea));
    return state;
}

/// A deck file in UTF-16 of these characters.
std::string wideFile(std::string_view text)
{
    std::string file = "\xFF\xFE";
    for (const char character : text)
        file.append({character, '\0'});
    return file;
}

TEST(OpenDocument, ShowsTheFirstAreaAndBringsItsOwnLineLayout)
{
    DeckDesk desk;
    desk.folder.put("a/eins.wml", deckOf("eins"));
    const std::string other = "<wml><card id=\"b\"><p>zwei</p></card></wml>";
    desk.folder.put("b/zwei.wml", other);
    OpenDocument(desk.session, "eins.wml", desk.folder.path() + "a/");
    desk.session.document.currentArea = 7;
    desk.type("!");
    desk.messages.answers = {true};
    OpenDocument(desk.session, "zwei.wml", desk.folder.path() + "a/./../b");
    EXPECT_EQ(desk.messages.taken(), Log{"ask 42"});
    EXPECT_NE(desk.folder.get("a/eins.wml").find("eins!</p>"), std::string::npos);
    const auto& first = desk.deck().front();
    EXPECT_EQ(desk.workFiles.read(first.pristineDir + first.pristineFile), other);
    EXPECT_EQ(desk.session.document.currentArea, 0);
    EXPECT_FALSE(desk.window.isChanged);
    EXPECT_EQ(desk.window.shown, 2);
    EXPECT_EQ(RecentDecks(desk.settings).paths().size(), 2U);

    desk.type("?");
    desk.messages.answers = {false}; // the same deck again, as it is in the file
    OpenDocument(desk.session, first.deckFile, first.deckDir);
    EXPECT_EQ(desk.area(0).find('?'), std::string::npos);
}

TEST(OpenDocument, LeavesTheOpenDeckAloneWhereItFails)
{
    struct Row {
        const char* name;
        const char* file;
        const char* wanted;
        bool isOffered = false; // to be opened without loss
    };
    const std::string longText(40000, 'x');
    const Row rows[] = {
        {"missing", "keine.wml", "gibt es nicht. Es wurde nichts geändert."},
        {"too long", "lang.wml",
            "ist zu lang (Überlauf): ein Dokument kann höchstens 32767 Zeichen haben. Es wurde "
            "nichts geändert.",
            true},
        {"endless", "null.wml", "keine gewöhnliche Datei. Es wurde nichts geändert."},
        {"a program", "programm.wml", "keinen WML-Text, den Quillmere lesen kann."},
        {"an open quote", "zitat.wml", "Es wurde nichts geändert.", true},
        {"UTF-16", "breit.wml", "keinen WML-Text", true},
        {"a pipe", "rohr.wml", "keine gewöhnliche Datei"},
    };
    DeckDesk desk;
    const auto folder = desk.folder.path() + "decks/";
    desk.folder.put("decks/gut.wml", deckOf("gut"));
    desk.folder.put("decks/lang.wml", deckOf(longText));
    desk.folder.put("decks/programm.wml",
        std::string("\x7F"
                    "ELF\0\0<card id=\"a\">",
            19));
    desk.folder.put("decks/zitat.wml", "<wml><card id=\"a\"><p><img src=\"x/></p></card></wml>");
    desk.folder.put("decks/breit.wml", wideFile("<wml><card><p>breit</p></card></wml>"));
    std::filesystem::create_symlink("/dev/zero", folder + "null.wml");
    ASSERT_EQ(::mkfifo((folder + "rohr.wml").c_str(), 0600), 0);
    for (const bool hasDeck : {false, true}) {
        if (hasDeck) {
            OpenDocument(desk.session, "gut.wml", folder);
            desk.type(" und neu");
        }
        for (const auto& row : rows) {
            SCOPED_TRACE(row.name);
            const auto before = stateOf(desk);
            if (hasDeck) desk.messages.answers = {false}; // changes are not to be saved
            if (row.isOffered) desk.messages.answers.push_back(false);
            std::string told;
            try {
                EXPECT_FALSE(OpenDocument(desk.session, row.file, folder));
                ASSERT_TRUE(row.isOffered) << "was opened";
                told = toUtf8(desk.messages.log.back());
            } catch (const Failure& failure) {
                told = failure.utf8();
            }
            EXPECT_NE(told.find(row.wanted), std::string::npos) << told;
            EXPECT_NE(told.find(row.file), std::string::npos) << told;
            EXPECT_EQ(stateOf(desk), before);
        }
    }
    desk.messages.answers = {false, true};
    OpenDocument(desk.session, "breit.wml", folder);
    EXPECT_TRUE(losesNothing(desk.session.document));
    EXPECT_NE(desk.area(0).find("breit"), std::string::npos);
    EXPECT_FALSE(isYes(desk.settings, "StandardOutput"));
    OpenDocument(desk.session, "gut.wml", folder); // the next one goes by the setting
    EXPECT_FALSE(losesNothing(desk.session.document));
    desk.type(" und neu");
    EXPECT_EQ(desk.window.shown, 3);
    desk.window.AskAndSaveTmpWmlDocToWmlDoc(false); // and it can still be saved
    EXPECT_NE(desk.folder.get("decks/gut.wml").find("gut und neu"), std::string::npos);
}

TEST(CreateNewPage, StartsADeckOfOneAreaInThePlaceOfTheOldOne)
{
    DeckDesk desk;
    const auto folder = desk.folder.path();
    EXPECT_FALSE(CreateNewPage(desk.session, "", folder));
    ASSERT_TRUE(CreateNewPage(desk.session, "seite", folder));
    EXPECT_EQ(desk.deck().front().deckFile, "seite.wml");
    EXPECT_EQ(desk.deck().front().deckDir, folder);
    EXPECT_EQ(GetCardAttributes(desk.session.document, 0).id, "Bereich1");
    EXPECT_TRUE(desk.deck().front().inUse && desk.window.isChanged);
    EXPECT_FALSE(desk.folder.has("seite.wml"));
    SaveCurrentDeck(desk.session);
    EXPECT_NE(desk.folder.get("seite.wml").find("<card id=\"Bereich1\""), std::string::npos);
    EXPECT_EQ(desk.settings.ReadSetting("LastPath1") + "/", folder);

    const auto old = desk.folder.put("zwei.wml", deckOf("alt"));
    const auto before = stateOf(desk);
    desk.messages.answers = {false};
    EXPECT_FALSE(CreateNewPage(desk.session, "zwei.txt", folder));
    EXPECT_EQ(stateOf(desk), before);
    EXPECT_EQ(desk.folder.get("zwei.wml"), deckOf("alt"));
    desk.messages.answers = {true};
    EXPECT_TRUE(CreateNewPage(desk.session, "zwei.txt", folder));
    EXPECT_EQ(desk.messages.taken(), (Log{"ask 10: zwei.wml", "ask 10: zwei.wml"}));
    EXPECT_FALSE(desk.folder.has("zwei.wml"));

    const auto state = stateOf(desk);
    desk.folder.put("ordner.wml/x", "");
    EXPECT_THROW(CreateNewPage(desk.session, "ordner", folder), FileFailure);
    EXPECT_THROW(CreateNewPage(desk.session, "x", folder + "keiner/"), FileFailure);
    EXPECT_EQ(stateOf(desk), state);
}

TEST(SaveProjectAs, GoesOnUnderTheNewNameAndCopiesThePictures)
{
    DeckDesk desk;
    const auto folder = desk.folder.path();
    const auto source = deckOf("<img src=\"b/bild.wbmp\" alt=\"x\"/><input name=\"n\"/>");
    desk.folder.put("alt/eins.wml", source);
    desk.folder.put("alt/b/bild.wbmp", std::string("\0\0\1\1\xFF", 5));
    desk.folder.put("neu/da.wml", "da");
    OpenDocument(desk.session, "eins.wml", folder + "alt/");
    // Without changes: byte for byte, although a conversion would drop the input.
    ASSERT_TRUE(SaveProjectAs(desk.session, "zwei", folder + "neu"));
    EXPECT_EQ(desk.folder.get("neu/zwei.wml"), source);
    EXPECT_EQ(desk.folder.get("neu/b/bild.wbmp").size(), 5U);
    for (const auto& area : desk.deck())
        EXPECT_EQ(area.deckDir + area.deckFile, folder + "neu/zwei.wml");
    EXPECT_EQ(desk.deck().front().images.at(1).sourceDir, folder + "neu/");

    desk.type("mehr");
    desk.messages.answers = {false, true};
    EXPECT_FALSE(SaveProjectAs(desk.session, "da.wml", folder + "neu/"));
    EXPECT_EQ(desk.folder.get("neu/da.wml"), "da");
    EXPECT_TRUE(SaveProjectAs(desk.session, "da.wml", folder + "neu/"));
    EXPECT_EQ(desk.messages.taken(), (Log{"ask 124: da.wml", "ask 124: da.wml"}));
    EXPECT_NE(desk.folder.get("neu/da.wml").find("mehr"), std::string::npos);
    EXPECT_EQ(desk.folder.get("neu/zwei.wml"), source); // what was left behind is as it was
    EXPECT_FALSE(desk.window.isChanged);
    EXPECT_FALSE(SaveProjectAs(desk.session, "a.b.c", folder));
    EXPECT_EQ(desk.messages.taken(), Log{"show 123"});

    desk.type("noch");
    const auto before = stateOf(desk);
    EXPECT_THROW(SaveProjectAs(desk.session, "x", folder + "keiner/"), FileFailure);
    EXPECT_THROW(SaveProjectAs(desk.session, "full", "/dev/full/"), FileFailure);
    EXPECT_EQ(stateOf(desk), before);

    desk.settings.WriteSetting("StandardOutput", "Yes");
    desk.folder.put("alt/breit.wml",
        wideFile("<wml><card><p><img src='b/bild.wbmp' alt=''/></p></card></wml>"));
    desk.folder.put("weit/da", "");
    desk.messages.answers = {false};
    OpenDocument(desk.session, "breit.wml", folder + "alt/");
    EXPECT_TRUE(SaveProjectAs(desk.session, "breit.wml", folder + "weit/"));
    EXPECT_TRUE(desk.folder.has("weit/b/bild.wbmp"));
}

TEST(DeckDialogs, AskForPathsWithTheirWordsAndKeepTheFolder)
{
    DeckDesk desk;
    const auto folder = desk.folder.path() + "Bücher & Decks/";
    desk.folder.put("Bücher & Decks/größe.wml", deckOf("eins"));
    const auto path = QString::fromStdString(folder + "größe.wml");
    auto& dialogs = desk.dialogs;

    dialogs.paths = {"", path};
    EXPECT_FALSE(OpenDeckDialog(desk.session));
    EXPECT_TRUE(desk.deck().empty());
    ASSERT_TRUE(OpenDeckDialog(desk.session));
    EXPECT_EQ(dialogs.questions.at(0).title, QStringLiteral("Dokument öffnen"));
    EXPECT_EQ(dialogs.questions.at(0).filter, QStringLiteral(u"WML-Dateien\u00a0(*.wml)"));
    EXPECT_EQ(desk.settings.ReadSetting("LastPath1") + "/", folder);

    dialogs.paths
        = {QString::fromStdString(desk.folder.put("lang.wml", deckOf(std::string(40'000, 'x'))))};
    desk.messages.answers = {false};
    EXPECT_FALSE(OpenDeckDialog(desk.session)); // and the open deck stays
    EXPECT_EQ(desk.messages.taken().size(), 1U);
    EXPECT_EQ(desk.deck().front().deckFile, "größe.wml");
    EXPECT_EQ(desk.settings.ReadSetting("LastPath1") + "/", folder);

    desk.type("!");
    dialogs.questions.clear();
    dialogs.paths = {
        QString::fromStdString(folder + "a&b.wml"), QString::fromStdString(folder + "Übung.wml")};
    EXPECT_TRUE(SaveDeckAsDialog(desk.session));
    EXPECT_EQ(desk.deck().front().deckFile, "Übung.wml");
    EXPECT_EQ(desk.messages.taken(), Log{"show 123"});
    EXPECT_EQ(dialogs.questions.at(0).name, QStringLiteral("größe.wml"));
    EXPECT_EQ(dialogs.questions.at(1).name, QStringLiteral("a&b.wml"));

    dialogs.questions.clear();
    dialogs.paths
        = {QString::fromStdString(folder + "a.b.c"), QString::fromStdString(folder + "neu")};
    desk.type("?");
    desk.messages.answers = {false};
    EXPECT_TRUE(NewDeckDialog(desk.session));
    EXPECT_EQ(desk.messages.taken(), (Log{"show 8", "ask 42"}));
    EXPECT_EQ(dialogs.questions.at(0).name, QStringLiteral("index.wml"));
    EXPECT_EQ(desk.deck().front().deckFile, "neu.wml");
}

TEST(RecentDecks, KeepsTheLastEightWithTheNewestInFront)
{
    MemorySettings settings;
    RecentDecks recent(settings);
    for (int i = 0; i < 10; ++i)
        recent.add("/d/" + std::to_string(i) + ".wml");
    recent.add("/d/5.wml");
    recent.remove("/d/9.wml");
    EXPECT_EQ(recent.paths(),
        (Log{"/d/5.wml", "/d/8.wml", "/d/7.wml", "/d/6.wml", "/d/4.wml", "/d/3.wml", "/d/2.wml"}));
}

TEST(DeckNames, AreCutAndCompletedAsPagesAndSorted)
{
    EXPECT_EQ(pageName("seite"), "seite.wml");
    EXPECT_EQ(pageName("seite.txt.x"), "seite.wml");
    EXPECT_EQ(deckPlace(QStringLiteral("/a//b\\c.wml")), (DeckPlace{"b\\c.wml", "/a/"}));
    const test::ScratchFolder folder;
    for (const char* name : {"seite10.wml", "seite2.wml", "INDEX.WML", "x.wbmp", "o.wml/x"})
        folder.put(name, "");
    EXPECT_EQ(deckFilesIn(folder.path()), (Log{"INDEX.WML", "seite2.wml", "seite10.wml"}));
    EXPECT_EQ(deckFilesIn("/nirgends/"), Log{});
}

} // namespace
} // namespace quillmere
