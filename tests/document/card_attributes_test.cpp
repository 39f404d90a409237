#include "document/card_attributes.h"

#include "support/small_deck.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

std::string cardOf(test::SmallDeck& deck)
{
    const auto card = GetCardAttributes(deck.session, 0);
    return card.id + "|" + card.title;
}

std::string jumpOf(test::SmallDeck& deck)
{
    const auto jump = GetJump(deck.session, 0);
    return jump.name + "|" + jump.label + "|" + jump.target;
}

TEST(CardAttributes, AreReadFromTheFirstMarkers)
{
    const struct {
        std::string (*read)(test::SmallDeck&);
        const char* file;
        const char* wanted;
    } rows[] = {
        {cardOf, "\r\n<!--card id=\"a\" title=\"b c\" newcontext=\"true\"-->\r\nx", "a|b c"},
        {cardOf, R"(<!--CARD ID="A" TITLE="B"-->)", "A|B"},
        {cardOf, R"(<!--card id="a"--><table title="t">)", "a|"},
        {cardOf, "<!--card id=\"a\"-->\r\n<!--card id=\"b\" title=\"t\"-->", "a|"},
        {cardOf, R"(<!--card title="t" card id="a"-->)", "a|"},
        {cardOf, "<!--card id=a title=\"t\"-->", "t|"}, {cardOf, "<!--card id=a-->\"x\"", "|"},
        {cardOf, R"(<!--card id="a" title="t")", "|"},
        {cardOf, R"(<!--card id="a>b" title="t"-->)", "a>b|"},
        {jumpOf, R"(<!--do type="accept" label="l" name="n"--><!--go href="#b"/--><!--/do-->)",
            "n|l|#b"},
        {jumpOf, R"(<!--do type="prev" label="l"--><!--go href="#b"--><!--/do-->)", "||"},
        {jumpOf, R"(<!--DO TYPE="Accept" NAME="n" LABEL="l"--><!--GO HREF="#b"--><!--/DO-->)",
            "n|l|#b"},
        {jumpOf, R"(<!--do type="accept"--><!--/do--> label="l" name="n" <!--go href="#b"/-->)",
            "||"},
        {jumpOf, R"(<!--do type="prev"--><!--/do--><!--do type="accept" label="l"--><!--/do-->)",
            "|l|"},
        {jumpOf, R"(<!--do type="accept" label="l"-->)", "||"}, // without end
    };
    test::SmallDeck deck;
    for (const auto& row : rows) {
        deck.giveArea(row.file);
        EXPECT_EQ(row.read(deck), row.wanted) << row.file;
    }
}

TEST(CardAttributes, AreSetInThePlaceOfTheOldOnes)
{
    const char* const rows[][2] = {
        {"<!--card id=\"lang\" title=\"alt\" x=\"y\"-->\r\n<p>",
            R"(<!--card id="i" title="t u" x="y"--><p>)"},
        {R"(<!--card id="a" x="y"--><table title="t">)",
            R"(<!--card id="i" title="t u" x="y"--><table title="t">)"},
        {"<p>x</p>\r\n", "<p>x</p>"},
        {"<!--card id=a-->\"x\"", "<!--card id=a-->\"x\""},
    };
    test::SmallDeck deck;
    for (const auto& row : rows) {
        deck.giveArea(row[0]);
        SetCardAttributes(deck.session, 0, "i", "t u");
        EXPECT_EQ(deck.design(0), row[1]);
    }
}

TEST(Jumps, AreSetInTheirMarkersOrMadeBehindTheCard)
{
    const struct {
        const char* before;
        Jump jump;
        const char* after;
    } rows[] = {
        {R"(<!--card id="a"--><!--do type="prev" name="Sprung"-->)", {"", "l", "#b"},
            "<!--card id=\"a\"--><!--do type=\"accept\" label=\"l\" name=\"Sprung0\"-->"
            "<!--go href=\"#b\"/--><!--/do--><!--do type=\"prev\" name=\"Sprung\"-->"},
        {"<p>x</p>", {"n", "l", "#b"}, "<p>x</p>"}, // no place for it
        {"<!--do type=\"accept\" label=\"\" name=\"alt\"--><!--go href=\"#x\"--><!--/go-->"
         "<!--/do--><!--go href=\"#y\"-->",
            {"n", "l", "#b"},
            "<!--do type=\"accept\" label=\"l\" name=\"n\"--><!--go href=\"#b\"--><!--/go-->"
            "<!--/do--><!--go href=\"#y\"-->"},
        {R"(<!--do type="accept" x="y"--><!--/do-->)", {"n", "l", "#b"},
            R"(<!--do type="accept" name="n"  label="l"  x="y"--><!--/do-->)"},
        // Its own name counts as taken, in any case; numbers have no gap.
        {R"(<!--do type="accept" name="sprung"--><!--/do-->)", {"Sprung", "l", ""},
            R"(<!--do type="accept" label="l"  name="Sprung0"--><!--/do-->)"},
        {R"(<!--do type="accept" name="Sprung" name="Sprung0"--><!--/do-->)", {"", "l", ""},
            R"(<!--do type="accept" label="l"  name="Sprung1" name="Sprung0"--><!--/do-->)"},
    };
    test::SmallDeck deck;
    for (const auto& row : rows) {
        deck.giveArea(row.before);
        SetJump(deck.session, 0, row.jump);
        EXPECT_EQ(deck.design(0), row.after);
    }
}

} // namespace
} // namespace quillmere
