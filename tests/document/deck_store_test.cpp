#include "document/deck_store.h"

#include "document/card_attributes.h"
#include "document/disk_work_files.h"
#include "document/failure.h"
#include "document/files.h"
#include "support/scratch_folder.h"
#include "support/store_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace quillmere {
namespace {

using test::StoreSession;

const std::string kHead = "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n"
                          "<BODY LINK=\"#0000ff\" VLINK=\"#800080\" BGCOLOR=\"#247F07\" "
                          "STYLE=\"font-size:12\" STYLE=\"font-family:Arial\">\r\n";
const std::string kTail = "</BODY>\r\n</HTML>\r\n";
const std::string kDeckHead = "<?xml version=\"1.0\"?>"
                              "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
                              "\"http://www.wapforum.org/DTD/wml_1.1.xml\">";

/// The work files by name.
std::string namesOf(const MemoryWorkFiles& files)
{
    std::string names;
    for (const auto& [name, bytes] : files.all())
        names += name + " ";
    return names;
}

TEST(LoadDeck, MakesADesignWorkFileForEachCard)
{
    StoreSession store;
    store.load("<?xml version=\"1.0\"?>\r\n<wml>\n<card id=\"eins\"\r title=\"Er\nste\">\r\n"
               "<do type=\"accept\" label=\"Weiter\"><go href=\"#zwei\"/></do>\r\n"
               "<p>Text<select><option onpick=\"#zwei\">A</option></select></p>\r\n</card>\r\n"
               "<card id=\"zwei\"><p>2</p></card></wml>");
    const auto& deck = store.session.deck;
    ASSERT_EQ(deck.size(), 3U);
    EXPECT_EQ(store.design(0),
        "<!--card id=\"eins\" title=\"Erste\"-->\r\n"
        "<!--do type=\"accept\" label=\"Weiter\"--><!--go href=\"#zwei\"/--><!--/do-->\r\n"
            + kHead
            + "<p>Text<!--select--><!--option onpick=\"#zwei\"--><input type=radio "
              "name=\"TempName1\" onclick=\"javascript:navigate('#zwei')\">A<!--/option-->"
              "<!--/select--></p>\r\n"
            + kTail);
    EXPECT_EQ(store.design(1), "<!--card id=\"zwei\"-->\r\n\r\n" + kHead + "<p>2</p>\r\n" + kTail);
    for (std::size_t area = 0; area < 2; ++area) {
        EXPECT_TRUE(deck[area].inUse);
        EXPECT_EQ(deck[area].deckFile, "deck.wml");
        EXPECT_EQ(deck[area].deckDir, "/nowhere/");
        EXPECT_EQ(deck[area].wmlFile, "given.wml");
        EXPECT_TRUE(store.workFiles.exists(deck[area].spareDesignFile));
    }
    EXPECT_FALSE(deck[2].inUse);
    EXPECT_EQ(deck[2].designFile, "");
}

TEST(LoadDeck, AnyTextGivesAnArea)
{
    for (const std::string text : {"", "nur Text", "<", "<card", "</card <card", "\xFF\x00\x01>"}) {
        SCOPED_TRACE(text);
        StoreSession store;
        store.load(text);
        EXPECT_GE(areaCount(store.session.deck), 1U);
        EXPECT_FALSE(store.written().empty());
    }
    StoreSession store;
    store.load("nur Text");
    const auto card = GetCardAttributes(store.session, 0);
    EXPECT_EQ(card.id, "Korrigiert");
    EXPECT_EQ(card.title, "Nicht festgelegt");
}

TEST(LoadDeck, ReadsTheFileOfThePerson)
{
    const test::ScratchFolder folder;
    folder.put(
        "deck.wml", "\xEF\xBB\xBF<wml><card id=\"a\"><p>\xC3\xA4\xE2\x82\xAC</p></card></wml>");
    StoreSession store;
    LoadDeck(store.session, {"deck.wml", folder.path(), "", ""}, 1);
    const auto& first = store.session.deck.front();
    const std::string opened = "<wml><card id=\"a\"><p>\xE4\x80</p></card></wml>"; // Windows-1252
    EXPECT_EQ(store.workFiles.read(first.wmlFile), opened);
    EXPECT_EQ(store.workFiles.read(first.pristineFile), opened);
    EXPECT_EQ(first.surfaceKind, 1);
    EXPECT_NE(store.design(0).find("<p>\xE4\x80</p>"), std::string::npos);
    EXPECT_EQ(namesOf(store.workFiles), "Wml0.htm Wml0.wml Wml1.htm Wml1.wml ");
}

TEST(LoadDeck, AFailureLeavesTheOpenDeck)
{
    const test::ScratchFolder folder;
    folder.put("lang.wml", std::string(32768, 'x'));
    folder.put("zitat.wml",
        R"(<card id="a"><p><img src="a.wbmp"/></p></card><card id="b"><img src="b></card>)");
    StoreSession store;
    store.load(R"(<card id="a"><p>alt<img src="b.wbmp"/></p></card>)");
    const auto names = namesOf(store.workFiles);
    const auto design = store.design(0);
    for (const std::string name : {"lang.wml", "zitat.wml", "fehlt.wml", ""}) {
        SCOPED_TRACE(name);
        EXPECT_THROW(LoadDeck(store.session, {name, folder.path(), "", ""}), Failure);
        EXPECT_EQ(namesOf(store.workFiles), names);
        ASSERT_EQ(areaCount(store.session.deck), 1U);
        EXPECT_EQ(store.session.deck.front().deckFile, "deck.wml");
        EXPECT_EQ(store.design(0), design);
    }
    store.workFiles.write("neu.wml", R"(<card id="a"><do type="x" label="y></do></card>)");
    EXPECT_THROW(LoadDeck(store.session, {"d", "/nowhere/", "neu.wml", ""}), InvalidArgument);
    EXPECT_TRUE(store.workFiles.exists("neu.wml"));
}

TEST(LoadDeck, ClearsUpBehindTheDeckItReplaces)
{
    StoreSession store;
    store.load(R"(<card id="a"><p><img src="b.wbmp"/></p></card><card id="b">2</card>)");
    const auto pristine = store.session.deck.front().pristineFile;
    store.workFiles.write(pristine, "wie geladen");
    store.load("<card id=\"c\">3</card>");
    const auto& first = store.session.deck.front();
    EXPECT_EQ(first.pristineFile, pristine);
    EXPECT_EQ(store.workFiles.read(pristine), "wie geladen");
    EXPECT_EQ(store.workFiles.all().size(), 4U);
    for (const auto& name : {first.designFile, first.spareDesignFile, first.wmlFile, pristine})
        EXPECT_TRUE(store.workFiles.exists(name)) << name;
}

TEST(AddArea, LinksNewAreasForward)
{
    StoreSession store;
    auto& session = store.session;
    AddArea(session, true, "neu.wml", "/decks");
    EXPECT_EQ(store.design(0),
        "<!--card id=\"Bereich1\" title=\"Nicht festgelegt\" newcontext=\"true\"-->\r\n" + kHead
            + "<P>\r\n</P>\r\n" + kTail);
    AddArea(session, false);
    SetJump(session, 1, {"", "Selbst", "#anderswo"});
    AddArea(session, false);
    AddArea(session, false);
    ASSERT_EQ(session.deck.size(), 5U);
    const std::string targets[] = {"#Bereich2", "#anderswo", "#Bereich4", ""};
    for (std::size_t area = 0; area < 4; ++area) {
        EXPECT_EQ(GetJump(session, area).target, targets[area]);
        EXPECT_EQ(GetCardAttributes(session, area).id, "Bereich" + std::to_string(area + 1));
        EXPECT_EQ(session.deck[area].deckDir, "/decks/");
        EXPECT_EQ(session.deck[area].wmlFile, "Wml0.wml");
        EXPECT_EQ(session.deck[area].history.size(), 1U);
    }
    EXPECT_EQ(GetJump(session, 0).label, "Wort136");
    EXPECT_EQ(GetJump(session, 0).name, "Sprung");

    AddArea(session, true, "neuer.wml", "/decks"); // what was open before is gone
    EXPECT_EQ(areaCount(session.deck), 1U);
    EXPECT_EQ(store.workFiles.all().size(), 1U);
}

TEST(AddArea, AFailureLeavesTheDeck)
{
    StoreSession store;
    AddArea(store.session, true, "neu.wml", "/decks/");
    for (int i = 1; i <= 32767; ++i) // no name is left
        store.workFiles.write("Wml" + std::to_string(i) + ".htm", {});
    EXPECT_THROW(AddArea(store.session, false), Overflow);
    EXPECT_EQ(areaCount(store.session.deck), 1U);
    EXPECT_NO_THROW(WriteDeck(store.session));
}

TEST(WriteDeck, JoinsTheAreas)
{
    StoreSession store;
    AddArea(store.session, true, "neu.wml", "/decks/");
    AddArea(store.session, false);
    store.workFiles.write(store.session.deck[0].designFile,
        "?<!--card id=\"a\"-->\r\n?<HTML>\r\n<p>e?ins\r\n?</p></BODY>");
    store.workFiles.write(store.session.deck[1].designFile, "<!--card id=\"b\"-->\n<p>zwei\n?</p>");
    EXPECT_EQ(store.written(),
        kDeckHead
            + "\r\n<wml>\r\n<card id=\"a\">\r\n<p>e?ins\r\n</p></card>\r\n<card id=\"b\">\r\n"
              "<p>zwei?\r\n</p></card>\r\n</wml>\r\n");
}

TEST(WriteDeck, GivesBackTheLayoutOfTheDeckAsOpened)
{
    StoreSession store;
    const std::string deck
        = kDeckHead + "\n\n<wml>\n  <card id=\"a\">\n    <p>eins</p>\n\n  </card>\n</wml>";
    store.load(deck);
    const auto once = store.written();
    EXPECT_NE(once.find("</p>\r\n\r\n  </card>"), std::string::npos) << once;
    StoreSession again;
    again.load(once);
    EXPECT_EQ(again.written(), once);
}

TEST(WriteDeck, AFailureWritesNothing)
{
    StoreSession store;
    store.load("<card id=\"a\"><p>eins</p></card>");
    const auto before = store.written();
    const std::string unquoted = R"(<!--do type="x" label="y--><!--go--><!--/do-->)";
    for (const auto& text : {unquoted, std::string(32768, 'x')}) {
        store.workFiles.write(store.session.deck.front().designFile, text);
        EXPECT_THROW(WriteDeck(store.session), RuntimeFailure);
        EXPECT_EQ(store.workFiles.read("given.wml"), before);
    }
    StoreSession empty;
    EXPECT_THROW(WriteDeck(empty.session), InvalidArgument);
}

TEST(SaveSurface, WaitsAndSavesTheArea)
{
    StoreSession store;
    AddArea(store.session, true, "neu.wml", "/decks/");
    SaveSurface(store.session, 0); // no window, nothing to save
    test::LoggingSurface surface;
    store.session.surface = &surface;
    surface.beBusy(2);
    SaveSurface(store.session, 0);
    EXPECT_EQ(surface.log, "yield;yield;save Wml0.htm;");
}

TEST(History, KeepsTheLastSixteen)
{
    StoreSession store;
    AddArea(store.session, true, "neu.wml", "/decks/");
    for (int i = 1; i < 40; ++i)
        appendHistory(store.session, i % 2 == 0 ? 0 : -1, std::to_string(i));
    const auto& history = store.session.deck.front().history;
    ASSERT_EQ(history.size(), 16U);
    EXPECT_EQ(history.front(), "24");
    EXPECT_EQ(history.back(), "39");
    EXPECT_THROW(appendHistory(store.session, 1, ""), InvalidArgument);
}

TEST(DeckStore, WorksOnADisk)
{
    const test::ScratchFolder folder;
    folder.put("decks/deck.wml", "<wml><card id=\"a\"><p>eins</p></card></wml>");
    StoreSession other; // for all but the work files
    {
        DiskWorkFiles files(folder.path());
        DocumentSession session{files, other.copies, other.session.prompter, other.session.settings,
            other.session.words, OutputRules(), {}};
        LoadDeck(session, {"deck.wml", folder.path() + "decks/", "", ""});
        WriteDeck(session);
        const auto& first = session.deck.front();
        EXPECT_EQ(first.wmlDir, files.directory());
        EXPECT_NE(readFile(first.wmlDir + first.wmlFile).find("<p>eins</p>"), std::string::npos);
        EXPECT_THROW(LoadDeck(session, {"decks", folder.path(), "", ""}), FileFailure);
    }
    EXPECT_EQ(folder.get("decks/deck.wml"), "<wml><card id=\"a\"><p>eins</p></card></wml>");
}

TEST(DeckStore, ThousandsOfCardsTakeNoTime)
{
    for (const std::string piece :
        {"<card>", "<card", "<", "<card id=\"\"/>", "</card>", "<card></card>"}) {
        std::string text;
        while (text.size() + piece.size() < 30000)
            text += piece;
        const auto begin = std::chrono::steady_clock::now();
        StoreSession store;
        store.load(text);
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500))
            << piece;
    }
}

} // namespace
} // namespace quillmere
