#include "document/card_attributes.h"

#include "support/small_deck.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quillmere {
namespace {

using Read = std::string (*)(DocumentSession&);

std::string card(DocumentSession& session)
{
    const auto card = GetCardAttributes(session, 0);
    return card.id + "|" + card.title;
}

std::string jump(DocumentSession& session)
{
    const auto jump = GetJump(session, 0);
    return jump.name + "|" + jump.label + "|" + jump.target;
}

TEST(CardAttributes, AreReadFromTheFirstMarkers)
{
    const std::tuple<Read, const char*, const char*> rows[]
        = {{card, "\r\n<!--CARD ID=\"a\" TITLE=\"b c\" newcontext=\"true\"-->\r\nx", "a|b c"},
            {card, "<!--card id=\"a\"-->\r\n<!--card id=\"b\" title=\"t\"-->", "a|"},
            {card, R"(<!--card title="t" card id="a"-->)", "a|"},
            {card, "<!--card id=a title=\"t\"-->", "t|"}, {card, "<!--card id=a-->\"x\"", "|"},
            {card, R"(<!--card id="a" title="t")", "|"}, {card, R"(<!--card id="a>b"-->)", "a>b|"},
            {jump, R"(<!--DO TYPE="Accept" NAME="n" LABEL="l"--><!--GO HREF="#b"--><!--/DO-->)",
                "n|l|#b"},
            {jump, R"(<!--do type="prev" label="l"--><!--go href="#b"--><!--/do-->)", "||"},
            {jump, R"(<!--do type="accept"--><!--/do--> label="l" name="n" <!--go href="#b"/-->)",
                "||"},
            {jump, R"(<!--do type="prev"--><!--/do--><!--do type="accept" label="l"--><!--/do-->)",
                "|l|"},
            {jump, R"(<!--do type="accept" label="l"-->)", "||"}}; // without end
    test::SmallDeck deck;
    for (const auto& [read, file, wanted] : rows) {
        deck.giveArea(file);
        EXPECT_EQ(read(deck.session), wanted) << file;
    }
}

void setCard(DocumentSession& session)
{
    SetCardAttributes(session, 0, "i", "t u");
}
void setJump(DocumentSession& session)
{
    SetJump(session, 0, {"n", "l", "#b"});
}
void setUnnamed(DocumentSession& session)
{
    SetJump(session, 0, {"", "l", "#b"});
}

TEST(CardAttributes, AreSetInThePlaceOfTheOldOnes)
{
    const struct {
        void (*set)(DocumentSession&);
        const char *before, *after;
    } rows[] = {{setCard, "<!--card id=\"lang\" title=\"alt\" x=\"y\"-->\r\n<p>",
                    R"(<!--card id="i" title="t u" x="y"--><p>)"},
        {setCard, R"(<!--card id="a" x="y"--><table title="t">)",
            R"(<!--card id="i" title="t u" x="y"--><table title="t">)"},
        {setCard, "<!--card id=a-->\"x\"", "<!--card id=a-->\"x\""},
        {setUnnamed, R"(<!--card id="a"--><!--do type="prev" name="Sprung"-->)",
            "<!--card id=\"a\"--><!--do type=\"accept\" label=\"l\" name=\"Sprung0\"-->"
            "<!--go href=\"#b\"/--><!--/do--><!--do type=\"prev\" name=\"Sprung\"-->"},
        {setJump, "<p>x</p>", "<p>x</p>"}, // no place for it
        {setJump, R"(<!--do type="accept" label="" name="o"--><!--go href="#x"--><!--/do-->#y)",
            R"(<!--do type="accept" label="l" name="n"--><!--go href="#b"--><!--/do-->#y)"},
        {setJump, R"(<!--do type="accept" x="y"--><!--/do-->)",
            R"(<!--do type="accept" name="n"  label="l"  x="y"--><!--/do-->)"},
        // Its own name counts as taken, in any case; numbers have no gap.
        {setUnnamed, R"(<!--do type="accept" name="sprung" name="Sprung0"--><!--/do-->)",
            R"(<!--do type="accept" label="l"  name="Sprung1" name="Sprung0"--><!--/do-->)"}};
    test::SmallDeck deck;
    for (const auto& row : rows) {
        deck.giveArea(row.before);
        row.set(deck.session);
        EXPECT_EQ(deck.design(0), row.after);
    }
}

TEST(CardAttributes, LeaveTheParametersOfAJumpAlone)
{
    test::SmallDeck deck(0, true);
    const std::string head = "<wml>\n<card id=\"a\"><do type=\"accept\"";
    const std::string tail
        = " method=\"post\"><postfield name=\"f\" value=\"1\"/></go></do></card>";
    deck.load(head + "><go href=\"x\"" + tail + "</wml>");
    EXPECT_EQ(jump(deck.session), "||x");
    setJump(deck.session);
    EXPECT_EQ(deck.written(), head + " name=\"n\" label=\"l\"><go href=\"#b\"" + tail + "</wml>");
    setUnnamed(deck.session);
    EXPECT_EQ(deck.written(), head + " name=\"n\" label=\"l\"><go href=\"#b\"" + tail + "</wml>");
}

TEST(CardAttributes, FindNoTitleInAnotherValue)
{
    test::SmallDeck deck(0, true);
    const std::string event = " onenterforward=\"x?title=a\"";
    const std::string tail = " ontimer=\"#b\"><p>t</p></card></wml>";
    deck.load("<wml><card id=\"a\"" + event + tail);
    EXPECT_EQ(card(deck.session), "a|");
    setCard(deck.session);
    EXPECT_EQ(card(deck.session), "i|t u");
    EXPECT_EQ(deck.written(),
        "<wml><card id=\"i\"" + event + " ontimer=\"#b\" title=\"t u\"><p>t</p></card></wml>");
}

} // namespace
} // namespace quillmere
