#include "support/design_samples.h"

#include "generator/deck_generator.h"
#include "support/small_deck.h"
#include "support/token_soup.h"

#include <array>
#include <string_view>

namespace quillmere::test {

namespace {

constexpr auto kTags = std::to_array<std::string_view>({"<p>", "<p align=center>", "</p>",
    "<table>", "<TABLE border=1>", "</table>", "<tr>", "</tr>", "<td>", "</td>", "<th>", "</TH>",
    "<tbody>", "<b>", "</b>", "<i>", "</i>", "<big>", "</small>", "<a href=x>", "</a>",
    "<img src=\"a\">", "</img>", "<input type=radio>", "<br/>", "</br>", "<center>", "</center>",
    "<font size=\"2\">", "<!--select-->", "<!--/select-->", "<!--option a=\"b\"-->",
    "<!--/option-->", "<!-- x > y -->", "<!--", "-->", "<", ">", "&", "&amp;", "&auml", "&#65",
    "&#", "a", "b", " ", "  ", "\r\n", "\t", "<BODY>", "</BODY>", "<html>", "</html>",
    "<!--card-->", "<!--/card-->", "<!--do-->", "<!--/do-->", "<!x>", "<td", "<a"});

// Few, so that what they make often fits.
constexpr auto kParts = std::to_array<std::string_view>({"<table><tr><td>", "</td></tr></table>",
    "</td><td>", "</td></tr>", "<tr><td>", "</table>", "</td>", "<p>", "</p>", "<b>", "</b>", "<a>",
    "</a>", "<!--x-->", "<!--/x-->", "a", " ", "\r\n", "<br/>", "<x>"});

constexpr auto kBlanks = std::to_array<std::string_view>(
    {" ", "\r\n", "<p>", "</p>", "<b>", "</a>", "<a>", "<!--x-->", "a", "<table><tr><td></table>"});

} // namespace

void forEachSoup(const UseText& use)
{
    forEachSequence(kBlanks, 4, use);
    for (std::uint64_t seed = 0; seed < 3000; ++seed) {
        use(randomSoup(seed, kTags, 3 + seed % 40));
        use(randomSoup(seed, kParts, 3 + seed % 25));
        use("<table><tr><td>" + randomSoup(seed, kParts, 3 + seed % 25));
    }
}

void forEachDeckText(double faults, const UseText& use)
{
    for (std::uint64_t seed = 0; seed < 30; ++seed) {
        SmallDeck deck;
        deck.load(bench::generateDeck(seed, {.targetBytes = 1200, .brokenness = faults}));
        for (std::size_t area = 0; area + 1 < deck.session.deck.size(); ++area)
            use(deck.design(area));
    }
}

} // namespace quillmere::test
