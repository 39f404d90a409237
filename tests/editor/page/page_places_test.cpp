#include "editor/page/page_places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace quillmere {
namespace {

std::vector<PagePlace> placesOf(const SurfacePage& page)
{
    std::vector<PagePlace> places;
    for (std::size_t block = 0; block < page.blocks.size(); ++block)
        for (std::size_t offset = 0; offset <= itemCount(page.blocks[block]); ++offset)
            places.push_back({block, offset});
    return places;
}

/// The text with a bar at the offset of each place.
std::string withPlaces(const std::string& text)
{
    const auto page = readSurfacePage(text);
    auto places = placesOf(page);
    std::string result = text;
    std::ranges::reverse(places); // from the back, so that the offsets ahead stay valid
    for (const auto place : places)
        result.insert(offsetAt(page, place), "|");
    return result;
}

std::string withoutBars(std::string text)
{
    std::erase(text, '|');
    return text;
}

TEST(PagePlaces, LieWhereTypedTextBelongs)
{
    constexpr std::pair<const char*, const char*> kRows[] = {
        {"nothing", "|"},
        {"plain text", "|a|&auml;| \t|b|"},
        {"the frame", "<BODY>\r\n<p>|a|</p>\r\n</BODY></HTML>"},
        {"formats", "<p><b>|a|</b><i>b|</i></p>"},
        {"behind the last letter of a format and ahead of the next", "<p>|a|<b>b|</b>c|</p>"},
        {"links", "<p>|<a href=\"x\">a|b</a>|c|<a><b>d</b></a>|</p>"},
        {"links in formats", "<p><b>|<a>a</a>|</b><a></a></p>"},
        {"links in links", "|<a><a>a|b</a></a>|c|"},
        {"a link that goes on", "<p>|<a>a|</p><p>|b</a>|</p>"},
        {"a link never ended", "|<a>a|b|"},
        {"options",
            "<p>|a|<!--select--><!--option--><input type=radio>|b|<!--/option--><!--option-->"
            "<input type=radio>|<!--/option--><!--/select--></p>"},
        {"at the start ahead of markers", "<p><b>|<!--select--><!--option--><input type=radio>|b|"},
        {"pictures and breaks", "|<img></img>|<br/>|<img>|"},
        {"chips", "|<font>|a|</font>|"},
        {"empty blocks",
            "<p>|</p><p><b><i>|</i></b></p><p>\r\n|</p><p>|<a></a></p><p>|<!--x--></p>"},
        {"layout", "<p>\r\n|a|\r\n</p>"},
        {"layout in an empty block", "<p>\r\n<b>|\r\n</p>"},
        {"tables",
            "|<table><tr><td>|a|</td><td>\r\n|</td></tr></table>|<table><tr><td>|<td><p>|b|"
            "<tr></table>\r\n|"},
        {"a table without end", "<p>|<table><tr><td>|</td></tr>|b|</p>"},
    };
    for (const auto& [name, text] : kRows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(withPlaces(withoutBars(text)), text);
    }
}

TEST(PagePlaces, AreFoundForEveryOffset)
{
    const std::string text = "<BODY> <p>a<a>b</a></p> <table><tr><td></td></tr></table>c</BODY>";
    const auto page = readSurfacePage(text);
    const auto places = placesOf(page);
    for (std::size_t offset = 0; offset <= text.size(); ++offset) {
        PagePlace expected = firstPlace(page);
        for (const auto place : places)
            if (offsetAt(page, place) <= offset) expected = place;
        EXPECT_EQ(placeAt(page, offset), expected) << offset;
    }
    EXPECT_EQ(lastPlace(page), places.back());
}

TEST(PagePlaces, KnowTheirNeighbours)
{
    const auto page = readSurfacePage("<p>ab</p><p></p>");
    EXPECT_EQ(itemAhead(page, {0, 0}), nullptr);
    EXPECT_EQ(itemBehind(page, {0, 0})->shown, u'a');
    EXPECT_EQ(itemAhead(page, {0, 2})->shown, u'b');
    EXPECT_EQ(itemBehind(page, {0, 2}), nullptr);
    EXPECT_EQ(itemBehind(page, {1, 0}), nullptr);
    EXPECT_EQ(offsetAt(page, {0, 99}), offsetAt(page, {0, 2}));
}

TEST(PagePlaces, LieInElements)
{
    using Kind = PageElement::Kind;
    const std::string text = "<p><b>a<b>b</b>c</b>d<i>e</p>f<b>g</b>";
    const auto page = readSurfacePage(text);
    const auto startOfInnermost = [&](char letter, Kind kind) {
        const auto element = innermostElement(page, text.find(letter, text.find('a')), kind);
        return element == kNone ? kNone : page.elements[element].start.begin;
    };
    EXPECT_EQ(startOfInnermost('a', Kind::Format), text.find("<b>a"));
    EXPECT_EQ(startOfInnermost('c', Kind::Format), text.find("<b>a"));
    EXPECT_EQ(startOfInnermost('d', Kind::Format), kNone);
    EXPECT_EQ(startOfInnermost('f', Kind::Format), text.find("<i>"));
    EXPECT_EQ(startOfInnermost('g', Kind::Format), text.find("<b>g"));
    EXPECT_EQ(startOfInnermost('e', Kind::Paragraph), 0U);
    EXPECT_EQ(startOfInnermost('f', Kind::Paragraph), kNone);
    EXPECT_EQ(innermostElement(page, text.find("b</b>"), Kind::Format), 2U);
    EXPECT_EQ(innermostElement(page, 0, Kind::Paragraph), kNone); // ahead of its content
}

TEST(PagePlaces, KnowTheTextAsItIsReadAgain)
{
    const struct {
        std::string_view text;
        std::vector<std::size_t> offsets;
    } rows[] = {
        {"a\r\n\nb\rc", {0, 1, 1, 1, 1, 2, 2, 3}},
        {"?a<b\nc", {0, 0, 0, 1, 2, 2, 3}}, // what stands ahead of the first tag is dropped
        {"a\nb<c", {0, 1, 1, 2, 3, 4}}, // but of the first line only
    };
    for (const auto& row : rows)
        for (std::size_t offset = 0; offset <= row.text.size(); ++offset)
            EXPECT_EQ(offsetInJoinedLines(row.text, offset), row.offsets.at(offset))
                << row.text << offset;
}

} // namespace
} // namespace quillmere
