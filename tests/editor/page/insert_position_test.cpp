#include "editor/page/hit_test.h"

#include "document/text/text_lines.h"
#include "document/text/text_search.h"
#include "support/area_texts.h"
#include "support/stopwatch.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace quillmere {
namespace {

TEST(ValidInsertPosition, KeepsToTheRulesWhereNothingIsLost)
{
    const struct {
        WmlElement wanted;
        std::string before;
        std::string after;
    } rows[] = {
        {WmlElement::Link, "<!--anchor-->x|<!--#go 1--><!--/anchor-->y",
            "<!--anchor-->x<!--#go 1--><!--/anchor-->|y"},
        {WmlElement::Image, "<!--anchor-->x|<!--/anchor-->", "<!--anchor-->x|<!--/anchor-->"},
        {WmlElement::Table, "<!--pre--><b>x|</b><!--/pre--> y", "<!--pre--><b>x</b><!--/pre-->| y"},
        {WmlElement::Link, "<!--pre-->x|<!--/pre-->", "<!--pre-->x|<!--/pre-->"},
        {WmlElement::Select, "<p><!--fieldset--><b>x|</b><!--/fieldset--></p>",
            "<p><!--fieldset--><b>x|</b><!--/fieldset--></p>"},
    };
    for (auto row : rows) {
        SCOPED_TRACE(row.before);
        const auto at = row.before.find('|');
        row.before.erase(at, 1);
        const auto place
            = ValidInsertPosition(static_cast<int>(at), row.before, row.wanted, OutputRules(true));
        EXPECT_EQ(row.before.insert(static_cast<std::size_t>(place), 1, '|'), row.after);
    }
}

// Slowly, one rule after the other and one place at a time.

using Pieces = std::vector<SourceRange>;

Pieces tagsOf(const std::string& text)
{
    Pieces tags;
    for (std::size_t at = text.find('<'); at != npos;) {
        auto end = text.find('>', at);
        if (end == npos) break;
        ++end;
        if (text.compare(at, 4, "<!--") == 0 && text.find("-->", at + 2) != npos)
            end = text.find("-->", at + 2) + 3;
        tags.push_back({at, end});
        at = text.find('<', end);
    }
    return tags;
}

struct Kind {
    std::string start;
    std::string end;
    bool nests;
};

/// Where the element that begins with the tag `first` ends; npos where it does not.
std::size_t elementEnd(
    const std::string& text, const Pieces& tags, std::size_t first, const Kind& kind)
{
    const auto is = [&](const SourceRange& tag, const std::string& key) {
        if (!standsAt(text, tag.begin, key)) return false;
        return std::isalnum(static_cast<unsigned char>(text[tag.begin + key.size()])) == 0;
    };
    if (!is(tags[first], kind.start)) return npos;
    int depth = 1;
    for (auto i = first + 1; i < tags.size(); ++i) {
        if (is(tags[i], kind.start) && !kind.nests) return npos;
        if (is(tags[i], kind.start)) ++depth;
        if (is(tags[i], kind.end) && --depth == 0) return tags[i].end;
    }
    return npos;
}

Pieces closedPieces(const std::string& text)
{
    const Kind kinds[] = {{"<table", "</table", true}, {"<a", "</a", false},
        {"<img", "</img", false}, {"<!--select", "<!--/select", false},
        {"<!--option", "<!--/option", false}, {"<!--do", "<!--/do", false}};
    const auto tags = tagsOf(text);
    auto pieces = tags;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        for (const Kind& kind : kinds) {
            const auto end = elementEnd(text, tags, i, kind);
            if (end != npos) pieces.push_back({tags[i].begin, end});
        }
    }
    for (const std::string entity : {"&lt;", "&amp;", "&nbsp;", "&auml;"})
        for (auto at = text.find(entity); at != npos; at = text.find(entity, at + 1))
            pieces.push_back({at, at + entity.size()});
    return pieces;
}

bool mayGoIn(const std::string& text, const Pieces& closed, std::size_t place)
{
    const auto card = text.find("<!--card");
    const auto cardEnd = card == npos ? npos : text.find('>', card);
    if (cardEnd != npos && place <= cardEnd) return false;
    if (text.find('>', place) < text.find('<', place)) return false;
    return std::ranges::none_of(
        closed, [&](const SourceRange& piece) { return piece.begin < place && place < piece.end; });
}

/// The first place at or behind each place of the text where markup may go in.
void expectFirstPlaces(const std::string& text)
{
    const auto closed = closedPieces(text);
    auto expected = text.size();
    for (auto place = text.size(); place-- > 0;) {
        if (mayGoIn(text, closed, place)) expected = place;
        ASSERT_EQ(ValidInsertPosition(static_cast<int>(place), text), static_cast<int>(expected))
            << text << " at " << place;
    }
}

TEST(ValidInsertPosition, IsTheFirstPlaceByAllRules)
{
    constexpr std::string_view kShort[]
        = {"<a>", "</a>", "<table>", "</table>", "&lt;", "<", ">", "<!--", "-->", "x"};
    test::forEachSequence(kShort, 4, expectFirstPlaces);
    constexpr std::string_view kLong[] = {"<a href=\"#b\">", "</a>", "<TABLE>", "</table>", "<td>",
        "<img src=\"x\">", "</img>", "<!--card id=\"a\"-->", "<!--select-->", "<!--/select-->",
        "<!--option-->", "<!--/option-->", "<!--do-->", "<!--/do-->", "<!--", "-->", "&amp;", "&",
        "<abbr>", "<p>", "</p>", "<", ">", "Text", " "};
    for (std::uint64_t seed = 0; seed < 500; ++seed)
        expectFirstPlaces(test::randomSoup(seed, kLong, 30));
}

/// Areas of whole decks and of broken ones, as the operations read them.
void forEachArea(const test::UseText& use)
{
    for (const double faults : {0.0, 0.2})
        test::forEachDeckText(faults, [&](const std::string& text) { use(joinLines(text)); });
}

TEST(ValidInsertPosition, IsTheFirstPlaceInAreasOfDecks)
{
    forEachArea(expectFirstPlaces);
    EXPECT_EQ(ValidInsertPosition(-5, "xy"), 0);
    EXPECT_EQ(ValidInsertPosition(99, "<a>"), 99);
}

TEST(ValidInsertPosition, TakesNoLongerForHostileTexts)
{
    for (const std::string_view piece :
        {"<", "<!--", "<!---", "&", "&#1", "<a", "<a>", "<table>", "<a><table>", "x>", "</a>"}) {
        SCOPED_TRACE(piece);
        std::string text;
        while (text.size() + piece.size() <= 32767)
            text += piece;
        const auto time = [&](const std::string& whole) {
            return test::millisecondsOf([&] { (void)ValidInsertPosition(1, whole); }, 3);
        };
        EXPECT_LT(time(text), 20);
        EXPECT_LT(time(text.substr(0, text.size() - 1) + ">"), 20);
    }
}

} // namespace
} // namespace quillmere
