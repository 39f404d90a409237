#include "document/deck_store.h"

#include "document/card_attributes.h"
#include "document/design_text.h"
#include "document/platform/disk_work_files.h"
#include "document/platform/files.h"
#include "document/text/failure.h"
#include "support/scratch_folder.h"
#include "support/small_deck.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using test::SmallDeck;

const std::string kHead = "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n"
                          "<BODY LINK=\"#0000ff\" VLINK=\"#800080\" BGCOLOR=\"#247F07\" "
                          "STYLE=\"font-size:12\" STYLE=\"font-family:Arial\">\r\n";
const std::string kTail = "</BODY>\r\n</HTML>\r\n";
const std::string kDeckHead = "<?xml version=\"1.0\"?>"
                              "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
                              "\"http://www.wapforum.org/DTD/wml_1.1.xml\">";

TEST(LoadDeck, MakesADesignWorkFileForEachCard)
{
    SmallDeck deck;
    deck.load("<?xml version=\"1.0\"?>\r\n<wml>\n<card id=\"eins\"\r title=\"Er\nste\">\r\n"
              "<do type=\"accept\" label=\"Weiter\"><go href=\"#zwei\"/></do>\r\n"
              "<p>Text<select><option onpick=\"#zwei\">A</option></select></p>\r\n</card>\r\n"
              "<card id=\"zwei\"><p>2</p></card></wml>");
    EXPECT_EQ(deck.design(0),
        "<!--card id=\"eins\" title=\"Erste\"-->\r\n"
        "<!--do type=\"accept\" label=\"Weiter\"--><!--go href=\"#zwei\"/--><!--/do-->\r\n"
            + kHead
            + "<p>Text<!--select--><!--option onpick=\"#zwei\"--><input type=radio "
              "name=\"TempName1\" onclick=\"javascript:navigate('#zwei')\">A<!--/option-->"
              "<!--/select--></p>\r\n"
            + kTail);
    EXPECT_EQ(deck.design(1), "<!--card id=\"zwei\"-->\r\n\r\n" + kHead + "<p>2</p>\r\n" + kTail);
    const auto& areas = deck.session.deck;
    ASSERT_EQ(areas.size(), 3U);
    EXPECT_TRUE(areas[0].inUse && areas[1].inUse && !areas[2].inUse);
    EXPECT_EQ(
        areas[1].deckDir + areas[1].deckFile + areas[1].wmlFile, "/nowhere/deck.wmlgiven.wml");
    EXPECT_TRUE(deck.files.exists(areas[1].spareDesignFile));
    for (const std::string text : {"", "<", "<card", "</card <card", "\xFF\x00\x01>", "nur Text"}) {
        deck.load(text); // any text gives an area
        EXPECT_GE(areaCount(areas), 1U) << text;
        EXPECT_EQ(GetCardAttributes(deck.session, 0).id == "Korrigiert", text != "<card") << text;
        EXPECT_FALSE(deck.written().empty());
    }
}

TEST(LoadDeck, ReadsTheFileOfThePersonAndClearsUpBehindTheDeckItReplaces)
{
    const test::ScratchFolder folder;
    const std::string text
        = "\xEF\xBB\xBF<wml><card id=\"a\"><p>\xC3\xA4\xE2\x82\xAC</p></card></wml>";
    folder.put("decks/deck.wml", text);
    SmallDeck deck;
    const std::string opened = "<wml><card id=\"a\"><p>\xE4\x80</p></card></wml>"; // Windows-1252
    for (int times = 0; times < 2; ++times) {
        LoadDeck(deck.session, {"deck.wml", folder.path() + "decks/", "", ""}, 1);
        const auto& first = deck.session.deck.front();
        EXPECT_EQ(deck.files.read(first.wmlFile), opened);
        EXPECT_EQ(deck.files.read(first.pristineFile), opened);
        EXPECT_EQ(first.surfaceKind, 1);
        EXPECT_EQ(deck.files.all().size(), 4U); // these two, the design and its spare one
        EXPECT_TRUE(deck.files.exists(first.designFile));
    }
    folder.put("decks/deck.wml", "<wml/>"); // what was opened stays the pristine copy
    deck.files.write("source.wml", "<card id=\"b\">");
    LoadDeck(deck.session, {"deck.wml", folder.path() + "decks/", "source.wml", ""});
    EXPECT_EQ(deck.files.read(deck.session.deck.front().pristineFile), opened);
    folder.put("decks/deck.wml", text);
    DiskWorkFiles files(folder.path());
    DocumentSession session{files, deck.copies, deck.core.prompter, deck.core.settings,
        deck.core.words, OutputRules(), {}};
    LoadDeck(session, {"deck.wml", folder.path() + "decks/", "", ""});
    WriteDeck(session);
    const auto written = readFile(files.directory() + session.deck.front().wmlFile);
    EXPECT_NE(written.find("<p>ae</p>"), std::string::npos) << written;
    EXPECT_EQ(folder.get("decks/deck.wml"), text);
}

TEST(LoadDeck, AFailureLeavesTheOpenDeck)
{
    const test::ScratchFolder folder;
    folder.put("ordner/lang.wml", std::string(32768, 'x'));
    folder.put("zitat.wml",
        R"(<card id="a"><p><img src="a.wbmp"/></p></card><card id="b"><img src="b></card>)");
    SmallDeck deck;
    deck.load(R"(<card id="a"><p>alt<img src="b.wbmp"/></p></card>)");
    const auto before = deck.files.all();
    deck.session.imageColour = 5;
    for (const char* name : {"ordner/lang.wml", "zitat.wml", "fehlt.wml", "ordner", ""}) {
        EXPECT_THROW(LoadDeck(deck.session, {name, folder.path(), "", ""}), Failure) << name;
        EXPECT_EQ(deck.files.all(), before);
        ASSERT_EQ(areaCount(deck.session.deck), 1U);
        EXPECT_EQ(deck.session.deck.front().deckFile, "deck.wml");
        EXPECT_EQ(deck.session.imageColour, 5);
    }
    // The text that a person was writing is not lost either.
    deck.files.write("source.wml", folder.get("zitat.wml"));
    EXPECT_THROW(LoadDeck(deck.session, {"deck.wml", "", "source.wml", ""}), InvalidArgument);
    EXPECT_EQ(deck.files.read("source.wml"), folder.get("zitat.wml"));
}

TEST(AddArea, LinksNewAreasForwardAndWriteDeckJoinsThem)
{
    SmallDeck deck;
    auto& session = deck.session;
    AddArea(session, true, "neu.wml", "/decks");
    EXPECT_EQ(deck.design(0),
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
        EXPECT_EQ(session.deck[area].deckDir + session.deck[area].wmlFile, "/decks/Wml0.wml");
    }
    AddArea(session, true, "neuer.wml", "/decks"); // what was open before is gone
    EXPECT_EQ(deck.files.all().size(), 1U);
    AddArea(session, false);
    deck.files.write(
        session.deck[0].designFile, "?<!--card id=\"a\"-->\r\n?<HTML>\r\n<p>e?ins\r\n?</p></BODY>");
    deck.files.write(session.deck[1].designFile, "<!--card id=\"b\"-->\n<p>zwei\n?</p>");
    EXPECT_EQ(deck.written(),
        kDeckHead
            + "\r\n<wml>\r\n<card id=\"a\">\r\n<p>e?ins\r\n</p></card>\r\n<card id=\"b\">\r\n"
              "<p>zwei?\r\n</p></card>\r\n</wml>\r\n");
    for (int i = 1; i < 40; ++i)
        PushUndo(session, i % 2 == 0 ? 0 : -1, std::to_string(i));
    const auto& history = session.deck.front().history;
    ASSERT_EQ(history.size(), 16U);
    EXPECT_EQ(history.front() + history.back(), "2439");
}

TEST(WriteDeck, GivesBackTheLayoutAsOpenedAndNothingWhereItFails)
{
    SmallDeck deck;
    deck.load(kDeckHead + "\n\n<wml>\n  <card id=\"a\">\n    <p>eins</p>\n\n  </card>\n</wml>");
    const auto once = deck.written();
    EXPECT_NE(once.find("</p>\r\n\r\n  </card>"), std::string::npos) << once;
    deck.load(once);
    EXPECT_EQ(deck.written(), once);
    const std::string unquoted = R"(<!--do type="x" label="y--><!--go--><!--/do-->)";
    for (const auto& text : {unquoted, std::string(32768, 'x')}) {
        deck.files.write(deck.session.deck.front().designFile, text);
        EXPECT_THROW(WriteDeck(deck.session), RuntimeFailure);
        EXPECT_EQ(deck.files.read("given.wml"), once);
    }
    EXPECT_THROW(WriteDeck(SmallDeck().session), InvalidArgument);
}

/// A surface that is busy a number of times and logs what it is asked for.
class LoggingSurface final : public EditingSurface {
public:
    [[nodiscard]] bool Busy() const override { return busyTimes > 0; }
    void SaveDocument(const std::string& path) override { log += "save " + path + ";"; }
    void yieldToEvents() override { log += "yield " + std::to_string(busyTimes--) + ";"; }
    int busyTimes = 2;
    std::string log;
};

TEST(DesignText, IsReadAsOneLineFromItsFirstTagOnAndWaitsForTheSurface)
{
    const std::string rows[][2] = {{"<a>\r\nb\nc\r<d>", "<a>bc<d>"},
        {"\xEF\xBB\xBF?<a>\r\nx<b>", "<a>x<b>"}, {"x\r\n?<b>", "x?<b>"}, {"", ""}};
    SmallDeck deck;
    for (const auto& row : rows) {
        deck.giveArea(row[0]);
        EXPECT_EQ(ReadDesignText(deck.session, 0), row[1]);
    }
    EXPECT_THROW(WriteDesignText(deck.session, 0, std::string(32768, 'x')), Overflow);
    EXPECT_THROW(WriteDesignText(deck.session, 1, "x"), InvalidArgument); // the spare record
    EXPECT_EQ(deck.design(0), "");
    SaveSurface(deck.session, 0); // no window, nothing to save
    LoggingSurface surface;
    deck.session.surface = &surface;
    SaveSurface(deck.session, 0);
    surface.busyTimes = 1;
    EXPECT_EQ(ReadDesignText(deck.session, 0), "");
    EXPECT_EQ(surface.log, "yield 2;yield 1;save Wml0.htm;yield 1;");
}

} // namespace
} // namespace quillmere
