#include "document/card_attributes.h"
#include "document/design_text.h"
#include "document/images.h"
#include "document/standard/opened_card.h"
#include "document/standard/standard_deck.h"
#include "document/standard_recovery.h"
#include "document/text/failure.h"
#include "document/text/limits.h"
#include "support/row_file.h"
#include "support/small_deck.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using test::SmallDeck;

const std::string kDocumentType = "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
                                  "\"http://www.wapforum.org/DTD/wml_1.1.xml\">";
const std::string kProlog = "<?xml version=\"1.0\"?>\n" + kDocumentType + "\n";

/// A deck that is opened without loss.
struct OpenDeck : SmallDeck {
    explicit OpenDeck(const std::string& file)
        : SmallDeck(0, true)
    {
        load(file);
    }
    /// The content of an area between BODY and its end.
    [[nodiscard]] std::string content(std::size_t area)
    {
        const auto text = ReadDesignText(session, area);
        const auto begin = text.find('>', text.find("<BODY")) + 1;
        return text.substr(begin, text.rfind("</BODY>") - begin);
    }
    /// Puts `after` in place of the first `before` in an area's text.
    void replace(std::size_t area, const std::string& before, const std::string& after)
    {
        auto text = ReadDesignText(session, area);
        const auto at = text.find(before, text.find('>', text.find("<BODY")));
        ASSERT_NE(at, std::string::npos) << before << " in " << text;
        WriteDesignText(session, area, text.replace(at, before.size(), after));
    }
};

TEST(StandardRoad, ShowsEachElementAsHtmlOrAsAMarker)
{
    for (const auto& row : test::rowsOf("standard_road.txt")) {
        const auto file = "<wml><card title=\"T\">" + row.at(0) + "</card></wml>";
        SCOPED_TRACE(file);
        OpenDeck deck(file);
        EXPECT_EQ(deck.content(0), row.at(1));
        EXPECT_EQ(deck.design(0).find("<!--card id=\"\" title=\"T\"-->\r\n\r\n<HTML>"), 0U);
        EXPECT_EQ(deck.written(), file);
        WriteDesignText(deck.session, 0, ReadDesignText(deck.session, 0)); // lines joined
        EXPECT_EQ(deck.written(), file);
    }
}

TEST(StandardRoad, ChangesInTheFileWhatWasChangedOnTheSurface)
{
    for (const auto& row : test::rowsOf("standard_edits.txt")) {
        SCOPED_TRACE(row.at(0));
        const auto head = kProlog + "<wml>\n<!-- x --><card id=\"a\">";
        const std::string tail = "</card>\n</wml>";
        OpenDeck deck(head + row.at(1) + tail);
        deck.replace(0, row.at(2), row.at(3));
        EXPECT_EQ(deck.written(), head + row.at(4) + tail);
    }
}

TEST(StandardRoad, PutsNewAreasAtTheirPlacesAndTakesGoneOnesOut)
{
    const std::string head
        = kProlog + "<wml>\n <head><meta name=\"a\" content=\"b\"/></head>\n <!-- 1 -->\n";
    const std::string first = " <card id=\"a\">\n  <p>1</p>\n </card>\n";
    const std::string second = " <card id=\"b\">\n  <p>2</p>\n </card>\n";
    const std::string tail = " <!-- 3 -->\n</wml>\n";
    const std::string jump = "<do type=\"accept\" label=\"\" name=\"Sprung\">"
                             "<go href=\"#Bereich3\"/></do>";
    OpenDeck deck(head + first + " <!-- 2 -->\n" + second + tail);
    AddArea(deck.session, false);
    const auto linked = std::string(second).insert(second.find("\n  <p>"), "\n  " + jump);
    const std::string added = " <card id=\"Bereich3\" title=\"Nicht festgelegt\" "
                              "newcontext=\"true\">\n  <p></p>\n </card>\n";
    EXPECT_EQ(deck.written(), head + first + " <!-- 2 -->\n" + linked + added + tail);
    std::swap(deck.session.deck[0], deck.session.deck[2]); // the new one first
    EXPECT_EQ(deck.written(), head + added + linked + first + " <!-- 2 -->\n" + tail);
    RemoveArea(deck.session, 2, false);
    RemoveArea(deck.session, 0, false);
    EXPECT_EQ(deck.written(), head + " <!-- 2 -->\n" + linked + tail);
}

TEST(StandardRoad, BeginsNewDecks)
{
    SmallDeck deck(0, true);
    AddArea(deck.session, true, "neu.wml", "/nowhere/");
    SetCardAttributes(deck.session, 0, "index", "Start &amp; mehr");
    const std::string written = "<?xml version=\"1.0\"?>\r\n" + kDocumentType
        + "\r\n<wml>\r\n<card id=\"index\" title=\"Start &amp; mehr\" newcontext=\"true\">\r\n"
          "<p></p>\r\n</card>\r\n</wml>\r\n";
    EXPECT_EQ(deck.written(), written);
    deck.load(written);
    EXPECT_EQ(deck.written(), written);
}

/// Operations on an area's markers, of which each deck has its own.
TEST(StandardRoad, KnowsCardsAndJumpsWhereTheyAreOfOtherShapes)
{
    OpenDeck deck("<wml><card title='T' ontimer='#b'><do type='accept' name='d'><prev/></do><p/>"
                  "</card></wml>");
    EXPECT_EQ(GetCardAttributes(deck.session, 0).title, "T");
    EXPECT_EQ(GetJump(deck.session, 0).name, "");
    EXPECT_TRUE(JumpNameInUse(deck.session, 0, "D"));
    SetCardAttributes(deck.session, 0, "neu", "T");
    SetJump(deck.session, 0, {"d", "L", "#b"});
    EXPECT_EQ(GetJump(deck.session, 0).target, "#b");
    EXPECT_EQ(deck.written(),
        "<wml><card title='T' ontimer='#b' id='neu'><do type='accept' label='L' name='Sprung0'>"
        "<go href='#b'/></do><do type='accept' name='d'><prev/></do><p/></card></wml>");
}

TEST(StandardRoad, LeadsToRenamedCardsFromItsTemplate)
{
    const auto deckOf = [](const std::string& event, const std::string& jump, const std::string& a,
                            const std::string& b) {
        return "<wml><template onenterbackward='#" + event + "'><do type='options'><go href='#"
            + jump + "'/></do></template><card id='" + a + "'><p/></card><card id='" + b
            + "'><p/></card></wml>";
    };
    OpenDeck deck(deckOf("b", "a", "a", "b"));
    SetCardAttributes(deck.session, 0, "neu", "");
    EXPECT_EQ(deck.written(), deckOf("b", "neu", "neu", "b"));
    SetCardAttributes(deck.session, 1, "a", ""); // to which the jump leads then
    EXPECT_EQ(deck.written(), deckOf("a", "a", "neu", "a"));
}

TEST(StandardRoad, FindsTheCardsOfADeckAgain)
{
    const std::string file
        = "<wml><head/><card id=\"a\"><p>1<img alt=\"\" src='a.wbmp'/></p></card>"
          "<card id=\"b\"><p>2</p></card></wml>";
    OpenDeck crashed(file);
    crashed.replace(1, "2", "3");
    RemoveArea(crashed.session, 0, false);
    OpenDeck deck("<wml/>");
    const auto card = cardOf(crashed.session.deck[0]);
    reopenDeck(
        deck.session, {{"deck.wml", "/nowhere/", {}, {}}, file, {{crashed.design(0), {}, card}}});
    EXPECT_EQ(deck.written(), "<wml><head/><card id=\"b\"><p>3</p></card></wml>");
}

TEST(StandardRoad, ShowsTheEntitiesThatADeckDeclares)
{
    const std::string head = "<!DOCTYPE wml [<!-- <!ENTITY firma 'x'> --><!ENTITY firma \"A &amp; "
                             "'B'\"><!ENTITY firma \"C\">\n<!ENTITY ue \"&#252;\"><!ENTITY "
                             "lt '&#38;#60;'><!ENTITY a '&b;&b;'><!ENTITY b '&a;&a;'><!ENTITY f "
                             "SYSTEM 'x>y'>]>\n<wml><card title=\"&firma;\"><p>";
    const std::string tail = "</p></card></wml>";
    OpenDeck deck(head + "Gr&ue;n bei&firma;! &lt;&a;&f;" + tail);
    EXPECT_EQ(deck.content(0),
        "<p>Gr\xFCn bei<!--#entity &amp;firma; A &amp;amp; 'B'-->! &lt;<!--#entity &amp;a; "
        "&amp;b;&amp;b;--><!--#entity &amp;f; SYSTEM 'x&gt;y'--></p>");
    deck.replace(0, "bei<!--#entity &amp;firma; A &amp;amp; 'B'-->!", "an");
    EXPECT_EQ(deck.written(), head + "Gr&ue;n an &lt;&a;&f;" + tail);
    deck.replace(0, "Gr", "<!--#entity &amp;firma; A--> gr");
    EXPECT_EQ(deck.written(), head + "&firma; gr&#252;n an &lt;&a;&f;" + tail);
}

TEST(StandardRoad, MendsABrokenDeckOnlyWithAChange)
{
    const std::string broken = "<wml><card id=\"a\"><p>a <b>b</p></card></wml>";
    OpenDeck deck(broken);
    EXPECT_EQ(standardMends(deck.session).size(), 1U);
    EXPECT_EQ(deck.written(), broken);
    deck.replace(0, "a ", "x ");
    EXPECT_EQ(deck.written(), "<wml><card id=\"a\"><p>x <b>b</b></p></card></wml>");
    for (const std::string file : {"", "<wml/>", "nur Text", "<", "\xFF\x01", "<card"}) {
        OpenDeck any(file); // any text gives an area
        EXPECT_GE(areaCount(any.session.deck), 1U) << file;
        EXPECT_EQ(any.written(), file);
    }
}

TEST(StandardRoad, KeepsTheEncodingOfTheFile)
{
    const std::string utf8 = "<wml><card><p>\xC3\xA4 \xE2\x86\x92</p></card></wml>";
    OpenDeck deck(utf8);
    EXPECT_EQ(deck.content(0), "<p>\xE4 &#8594;</p>");
    deck.replace(0, "\xE4", "\xF6");
    EXPECT_EQ(deck.written(), "<wml><card><p>\xC3\xB6 \xE2\x86\x92</p></card></wml>");
    std::string utf16 = "\xFF\xFE";
    for (const char c : std::string("<wml><card><p>a\xE4</p></card></wml>"))
        utf16.append({c, '\0'});
    OpenDeck wide(utf16);
    EXPECT_EQ(wide.written(), utf16);
    wide.replace(0, "a\xE4", "b\xF6");
    utf16[utf16.find('a', utf16.find("p\0>", 0, 3))] = 'b';
    utf16[utf16.find('\xE4')] = '\xF6';
    EXPECT_EQ(wide.written(), utf16);
}

TEST(StandardRoad, HoldsDecksOfOneMegabyte)
{
    const auto ofSize = [](std::size_t size) {
        const std::string head = "<wml><card><p>";
        const std::string tail = "</p></card></wml>";
        std::string text = head;
        while (text.size() + tail.size() + 5 <= size)
            text += "Wort ";
        return text.append(size - text.size() - tail.size(), 'x') + tail;
    };
    OpenDeck deck(ofSize(kMaxLosslessDeckLength - 1));
    deck.replace(0, "Wort", "Worte");
    EXPECT_EQ(deck.written().size(), kMaxLosslessDeckLength);
    deck.replace(0, "Worte", "Worten");
    EXPECT_THROW(WriteDeck(deck.session), DeckTooLong);
    EXPECT_THROW(OpenDeck(ofSize(kMaxLosslessDeckLength + 1)), DeckTooLong);
    std::string wide = "\xFF\xFE"; // the file counts
    for (const char c : ofSize(kMaxLosslessDeckLength / 2))
        wide.append({c, '\0'});
    EXPECT_THROW(OpenDeck{wide}, DeckTooLong);
}

} // namespace
} // namespace quillmere
