#include "document/card_attributes.h"
#include "document/design_text.h"
#include "document/images.h"
#include "document/standard/opened_card.h"
#include "document/standard/standard_deck.h"
#include "document/standard_recovery.h"
#include "document/text/failure.h"
#include "document/text/limits.h"
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
    struct Row {
        std::string card, content;
    };
    const Row rows[] = {
        {"<p mode='nowrap' align=\"left\">\n  Ein <em>Wort</em>&#228;\n  x<br/>\n y</p>",
            "<p mode=\"nowrap\" align=\"left\">Ein <em>Wort</em>\xE4   x<br/>y</p>"},
        {"<do name=\"n\" label=\"L\" type=\"accept\">\n<go href=\"#b\"/>\n</do><p/>",
            "<!--do type=\"accept\" label=\"L\" name=\"n\"--><!--go "
            "href=\"#b\"/--><!--/do--><p></p>"},
        {"<do type=\"prev\"><prev/></do><p>a</p>",
            "<!--#do &lt;do type=\"prev\"&gt;&lt;prev/&gt;&lt;/do&gt;--><p>a</p>"},
        {"<timer value=\"9\"/><p><anchor>a<go method=\"post\" href=\"?a=1&amp;b\">"
         "<postfield name=\"x\" value=\"$(x)\"/></go></anchor></p>",
            "<!--#timer &lt;timer value=\"9\"/&gt;--><p><!--anchor-->a"
            "<!--go href=\"?a=1&amp;b\" method=\"post\"-->"
            "<!--#postfield &lt;postfield name=\"x\" value=\"$(x)\"/&gt;--><!--/go-->"
            "<!--/anchor--></p>"},
        {"<p>\n<select name=\"s\">\n<optgroup title=\"g\"><option "
         "value=\"1\">A</option>\n</optgroup>"
         "\n</select>\n</p>",
            "<p><!--select name=\"s\"--><!--optgroup title=\"g\"--><!--option value=\"1\"-->"
            "<input type=radio "
            "name=\"TempName1\">A<!--/option--><!--/optgroup--><!--/select--></p>"},
        {"<p><table columns=\"1\"><tr><td id=\"x\">1</td></tr></table><input name=\"i\"/></p>",
            "<p><table columns=\"1\" border=\"1\"><tr><td id=\"x\">1</td></tr></table>"
            "<!--#input &lt;input name=\"i\"/&gt;--></p>"},
        {"<p><a title='\"t\"' href=\"#b\">l</a><!-- a - b ->--><![CDATA[<x>]]></p>",
            "<p><a href=\"#b\" title=\"&quot;t&quot;\">l</a>"
            "<!--#comment &lt;!&#45;&#45; a - b -&gt;&#45;&#45;&gt;-->"
            "<!--#cdata &lt;![CDATA[&lt;x&gt;]]&gt;--></p>"},
        {"<p><wort art=\"1\">a</wort><leer/>b</p>",
            "<p><!--wort art=\"1\"-->a<!--/wort--><!--#leer &lt;leer/&gt;-->b</p>"},
        {"<p><img src=\"a.wbmp\" alt=\"A\" height=\"3\" width=\"4\" localsrc=\"l\"/>"
         "<img src=\"b.png\" alt=\"B\"></img></p>",
            "<p><img src=\"Bmp0.bmp\" alt=\"A\" style=\"height: 3px; width: 4px\" localsrc=\"l\">"
            "</img><img src=\"b.png\" alt=\"B\"></img></p>"},
        {"<pre> a\n b</pre>", "<!--pre--> a  b<!--/pre-->"},
    };
    for (const auto& row : rows) {
        const auto file = "<wml><card title=\"T\">" + row.card + "</card></wml>";
        SCOPED_TRACE(file);
        OpenDeck deck(file);
        EXPECT_EQ(deck.content(0), row.content);
        EXPECT_EQ(deck.design(0).find("<!--card id=\"\" title=\"T\"-->\r\n\r\n<HTML>"), 0U);
        EXPECT_EQ(deck.written(), file);
        WriteDesignText(deck.session, 0, ReadDesignText(deck.session, 0)); // lines joined
        EXPECT_EQ(deck.written(), file);
    }
}

struct EditRow {
    std::string name, card, before, after, written;
};

const EditRow kEdits[] = {
    {"a word", "<p>Ein  <b>W&#246;rt</b>\n&amp; mehr</p>", "mehr", "m\xE4hr",
        "<p>Ein  <b>W&#246;rt</b>\n&amp; m&#228;hr</p>"},
    {"a word goes, the line end stays", "<p>\n  eins zwei\n</p>", " zwei", "", "<p>\n  eins\n</p>"},
    {"an attribute changes", "<p  align='left'\n mode='wrap'>a</p>", "left", "right",
        "<p  align='right'\n mode='wrap'>a</p>"},
    {"an attribute goes", "<p  align='left'\n mode='wrap'>a</p>", " align=\"left\"", "",
        "<p\n mode='wrap'>a</p>"},
    {"the first attribute of a tag", "<p >a</p>", "<p>", "<p align=\"right\">",
        "<p align=\"right\" >a</p>"},
    {"a new attribute has the deck's quotes",
        "<p mode='wrap'><table columns='1'><tr><td/></tr>"
        "</table></p>",
        "<table", "<table title=\"it's &quot;T&quot;\"",
        "<p mode='wrap'><table columns='1' title='it&apos;s &quot;T&quot;'><tr><td/></tr>"
        "</table></p>"},
    {"upper-case tags of other surfaces", "<p align='left'>a <b>x</b></p>",
        "<p align=\"left\">a <b>x</b></p>", "<P align=left>a <B>y</B></P>",
        "<p align='left'>a <b>y</b></p>"},
    {"a deleted paragraph takes its line along", "<p>a</p>\n  <p>b</p>\n  <p>c</p>\n", "<p>b</p>",
        "", "<p>a</p>\n  <p>c</p>\n"},
    {"the size of a picture", "<p><img alt='A' src='a.wbmp' height='3' width='4'/></p>",
        "width: 4px", "width: 8px", "<p><img alt='A' src='a.wbmp' height='3' width='8'/></p>"},
    {"what a dialog puts behind a table", "<p>a</p>", "a",
        "<table title=\"\" columns=\"1\" border=\"1\"><tr><td>Z</td></tr></table>"
        "<!--Test--> <!--Test2--></br>",
        "<p><table title=\"\" columns=\"1\"><tr><td>Z</td></tr></table></p>"},
    {"a new list with a break behind", "<p>a</p>", "a",
        "<!--select--><!--option onpick=\"#b\"--><input type=radio name=\"TempName1\">A"
        "<!--/option--><!--/select--><br/>b",
        "<p><select><option onpick=\"#b\">A</option></select>b</p>"},
    {"an atom changes", "<p>a<!-- b -->c</p>", " b ", " d ", "<p>a<!-- d -->c</p>"},
    {"foreign tags and comments", "<p>a</p>", "a",
        "<font color=\"red\">a<!-- x --><!--neu--></font><div>b</div>", "<p>ab</p>"},
};

const EditRow kNewParts[] = {
    {"a paragraph in lines", "\n  <p>a</p>\n  <p>b</p>\n", "<p>b</p>", "<p>neu</p><p>b</p>",
        "\n  <p>a</p>\n  <p>neu</p>\n  <p>b</p>\n"},
    {"a paragraph without lines", "<p>a</p><p>b</p>", "<p>b</p>", "<p>neu</p><p>b</p>",
        "<p>a</p><p>neu</p><p>b</p>"},
    {"text outside of paragraphs", "\n  <p>a</p>\n", "<p>a</p>", "<p>a</p>neu <b>fett</b>",
        "\n  <p>a</p>\n  <p>neu <b>fett</b></p>\n"},
    {"a paragraph cut in two", "\n  <p>a b</p>\n", "a b", "a</p><p>b",
        "\n  <p>a</p>\n  <p>b</p>\n"},
    {"a paragraph's end that was deleted", "\n  <p>a</p>\n  <p>b</p>\n", "</p>", "",
        "\n  <p>a</p>\n  <p>b</p>\n"},
    {"overlapping formats", "<p>a b c</p>", "a b c", "<b>a <i>b</b> c</i>",
        "<p><b>a <i>b</i></b> <i>c</i></p>"},
    {"a jump ahead of events",
        "\n <onevent type=\"ontimer\"><go href=\"#b\"/></onevent>\n "
        "<timer value=\"1\"/>\n <p>a</p>\n",
        "<!--#onevent",
        "<!--do type=\"accept\" label=\"L\" name=\"N\"--><!--go href=\"#c\"/--><!--/do-->"
        "<!--#onevent",
        "\n <onevent type=\"ontimer\"><go href=\"#b\"/></onevent>\n <timer value=\"1\"/>\n "
        "<do type=\"accept\" label=\"L\" name=\"N\"><go href=\"#c\"/></do>\n <p>a</p>\n"},
    {"text between an action's parameters",
        "<p><anchor>a<go href=\"#b\"><setvar name=\"x\" value=\"1\"/></go></anchor></p>",
        "<!--/go-->", "b &amp; c<!--/go-->",
        "<p><anchor>a<go href=\"#b\"><setvar name=\"x\" value=\"1\"/></go>b &amp; c</anchor></p>"},
    {"a change ahead of a misplaced event",
        "<p>a</p><onevent type=\"ontimer\"><go href=\"#b\"/></onevent>", "<p>",
        "<p align=\"right\">",
        "<p align=\"right\">a</p><onevent type=\"ontimer\"><go href=\"#b\"/></onevent>"},
    {"an event behind text", "<p>a</p>", "</p>", "</p><!--#timer &lt;timer value=\"1\"/&gt;-->",
        "<timer value=\"1\"/><p>a</p>"},
    {"text and a break in a list", "<p><select><option>a</option></select></p>", "a<!--/option-->",
        "a<br/>b<!--/option-->c d",
        "<p><select><option>a b</option><option>c d</option></select></p>"},
    {"formats and a link that were put into a link", "<p><a href=\"#a\">x</a><b>y</b></p>", ">x<",
        "><b>x</b><a href=\"#b\">z</a><br/><", "<p><a href=\"#a\">xz<br/></a><b>y</b></p>"},
    {"a break that was moved into an entry", "<p><select><option>ab</option></select>c<br/>d</p>",
        "b<!--/option--><!--/select-->c<br/>", "<br/>b<!--/option--><!--/select-->c",
        "<p><select><option>a b</option></select>cd</p>"},
    {"bare signs", "<p>a</p>", "a", "R&D <3 a>b", "<p>R&amp;D &lt;3 a&gt;b</p>"},
};

TEST(StandardRoad, WritesNewPartsAsAnAuthorWould)
{
    for (const auto& row : kNewParts) {
        SCOPED_TRACE(row.name);
        const std::string head = kProlog + "<wml>\n<card id=\"a\">";
        const std::string tail = "</card>\n</wml>";
        OpenDeck deck(head + row.card + tail);
        deck.replace(0, row.before, row.after);
        EXPECT_EQ(deck.written(), head + row.written + tail);
    }
}

TEST(StandardRoad, ChangesInTheFileWhatWasChangedOnTheSurface)
{
    for (const auto& row : kEdits) {
        SCOPED_TRACE(row.name);
        const std::string head = "<wml>\n<!-- x --><card id=\"a\">";
        const std::string tail = "</card>\n</wml>";
        OpenDeck deck(head + row.card + tail);
        deck.replace(0, row.before, row.after);
        const auto wanted = row.written.empty() ? row.card : row.written;
        EXPECT_EQ(deck.written(), head + wanted + tail);
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
    const auto deckOf = [](std::string event, std::string jump, std::string a, std::string b) {
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
