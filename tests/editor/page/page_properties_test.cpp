// What holds for every page, whatever its text.

#include "editor/page/page_places.h"
#include "support/area_texts.h"
#include "support/small_random.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <tuple>

namespace quillmere {
namespace {

/// Areas of whole decks and of broken ones.
void forEachDeckText(const test::UseText& check)
{
    for (const double faults : {0.0, 0.2})
        test::forEachDeckText(faults, check);
    test::forEachFormText(check);
}

/// As other editors left them.
void forEachOldText(const std::function<void(const std::string&)>& check)
{
    check(
        "<HTML><BODY BGCOLOR=white>\r\n<CENTER><FONT SIZE=+1><B>Kino</B></FONT></CENTER>\r\n<P>\r\n"
        "Heute&nbsp;&#150; &quot;M&auml;rz&quot &amp Mai\r\n<P "
        "ALIGN=right>Ende<BR>\r\n<HR></BODY>");
    check(
        "<TABLE BORDER=0 WIDTH=\"90%\">\r\n<TBODY>\r\n<TR VALIGN=top>\r\n<TD> 1\r\n<TD><P>2</P>\r\n"
        "  <TABLE><TR><TH>3</TABLE>\r\n<TR><TD COLSPAN=2>4  5</TABLE>\r\n</HTML>");
    check("<p>a<b>b<i>c</b>d</i></font>e</td><!--option onpick=\"#a\"--><a name=x>f</p></a>"
          "<!-- <p> --><p>\t<img src=x.bmp align=top>g  h<p></td></tr><!--/select-->&lt;i &l;");
    check("<p><table><tr><td><b></b></td></tr></table></p><!--select--><p><!--option--></p>");
}

void expectInside(SourceRange range, SourceRange outer)
{
    EXPECT_LE(outer.begin, range.begin);
    EXPECT_LE(range.begin, range.end);
    EXPECT_LE(range.end, outer.end);
}

/// Blocks cover the items, and all lies in the text in ascending order.
void expectSound(const SurfacePage& page)
{
    expectInside(page.content, {0, page.text.size()});
    std::size_t item = 0;
    std::size_t read = page.content.begin;
    for (const auto& block : page.blocks) {
        expectInside(block.content, {read, page.content.end});
        EXPECT_EQ(block.firstItem, item);
        read = block.content.begin;
        for (; item < block.endItem; read = page.items[item++].source.end) {
            expectInside(page.items[item].source, {read, block.content.end});
            EXPECT_FALSE(page.items[item].source.empty());
            EXPECT_LT(page.items[item].style, page.styles.size());
        }
        read = block.content.end;
    }
    EXPECT_EQ(item, page.items.size());
}

void expectSoundTables(const SurfacePage& page)
{
    for (const auto& table : page.tables) {
        EXPECT_EQ(page.blocks.at(table.blockAhead).cell, table.outerCell);
        EXPECT_EQ(page.blocks.at(table.blockBehind).cell, table.outerCell);
        EXPECT_LE(page.blocks[table.blockAhead].content.end, table.source.begin);
        EXPECT_GE(page.blocks[table.blockBehind].content.begin, table.source.end);
    }
    std::size_t start = 0;
    for (const auto& cell : page.cells) {
        expectInside(cell.content, page.tables.at(cell.table).source);
        EXPECT_LT(cell.firstBlock, cell.endBlock);
        EXPECT_LE(start, cell.content.begin);
        start = cell.content.begin;
        for (auto block = cell.firstBlock; block < cell.endBlock; ++block)
            expectInside(page.blocks.at(block).content, cell.content);
    }
}

void expectSoundElements(const SurfacePage& page)
{
    std::size_t read = 0;
    for (const auto& element : page.elements) {
        expectInside(element.start, {read, page.text.size()});
        EXPECT_FALSE(element.start.empty());
        expectInside(element.end, {element.start.end, page.text.size()});
        read = element.start.end;
    }
    for (const auto& style : page.styles) {
        if (style.link == kNone) continue;
        const auto kind = page.elements.at(style.link).kind;
        EXPECT_TRUE(kind == PageElement::Kind::Link || kind == PageElement::Kind::Marker);
    }
}

template <class Use> void forEachPlace(const SurfacePage& page, const Use& use)
{
    for (std::size_t block = 0; block < page.blocks.size(); ++block)
        for (std::size_t offset = 0; offset <= itemCount(page.blocks[block]); ++offset)
            use(PagePlace{block, offset});
}

void expectOrderedPlaces(const SurfacePage& page)
{
    std::size_t free = page.content.begin;
    forEachPlace(page, [&](PagePlace place) {
        const auto offset = offsetAt(page, place);
        EXPECT_GE(offset, free);
        EXPECT_EQ(placeAt(page, offset), place);
        free = offset + 1;
    });
    EXPECT_LE(free, page.content.end + 1);
}

TEST(PageProperties, AllRangesLieInTheTextInTheirOrder)
{
    const auto check = [](const std::string& text) {
        const auto page = readSurfacePage(text, test::rulesOf(text));
        ASSERT_EQ(page.text, text);
        expectSound(page);
        expectSoundTables(page);
        expectSoundElements(page);
        expectOrderedPlaces(page);
        ASSERT_FALSE(testing::Test::HasFailure()) << text;
    };
    test::forEachSoup(check);
    forEachDeckText(check);
    forEachOldText(check);
}

// No reference has this letter in it, so it melts into none.
constexpr char kTyped = 'Z';

/// Compares a page with the one read anew after a letter was typed: all looks as before but for the
/// new item, and lies where it lay or one further on.
class AfterTyping {
public:
    AfterTyping(const SurfacePage& before, PagePlace place)
        : before_(before)
        , place_(place)
        , offset_(offsetAt(before, place))
        , item_(before.blocks[place.block].firstItem + place.offset)
        , after_(readSurfacePage(std::string(before.text).insert(offset_, 1, kTyped), before.rules))
    {
    }
    [[nodiscard]] bool isAsBefore() const
    {
        return hasTheLetter() && hasTheStyle() && hasTheItems() && hasTheBlocks() && hasTheCells()
            && hasTheElements();
    }
    [[nodiscard]] std::string text() const { return after_.text; }

private:
    [[nodiscard]] static SourceRange moved(SourceRange range, bool isBehind)
    {
        return isBehind ? SourceRange{range.begin + 1, range.end + 1} : range;
    }
    [[nodiscard]] bool hasTheLetter() const
    {
        if (after_.items.size() != before_.items.size() + 1) return false;
        const auto& item = after_.items[item_];
        return item.shown == kTyped && item.source == SourceRange{offset_, offset_ + 1};
    }
    [[nodiscard]] bool hasTheStyle() const
    {
        const auto& block = before_.blocks[place_.block];
        const auto& typed = after_.styles[after_.items[item_].style];
        return itemCount(block) > 0 || typed == before_.styles[block.style];
    }
    [[nodiscard]] bool hasTheItems() const
    {
        for (std::size_t i = 0; i < before_.items.size(); ++i) {
            const auto& before = before_.items[i];
            const auto& after = after_.items[i < item_ ? i : i + 1];
            const bool looksAlike = before.shown == after.shown && before.kind == after.kind
                && before_.styles[before.style] == after_.styles[after.style];
            if (!looksAlike || after.source != moved(before.source, i >= item_)) return false;
        }
        return true;
    }
    [[nodiscard]] bool hasTheBlocks() const
    {
        if (before_.blocks.size() != after_.blocks.size()) return false;
        for (std::size_t i = 0; i < before_.blocks.size(); ++i) {
            const auto& before = before_.blocks[i];
            const auto& after = after_.blocks[i];
            const std::size_t first = i > place_.block ? 1 : 0;
            const std::size_t end = i >= place_.block ? 1 : 0;
            const bool isSame = before.cell == after.cell && before.paragraph == after.paragraph
                && before.alignment == after.alignment;
            const bool hasItems = before.firstItem + first == after.firstItem
                && before.endItem + end == after.endItem;
            if (!isSame || !hasItems) return false;
        }
        return true;
    }
    [[nodiscard]] bool hasTheCells() const
    {
        return std::ranges::equal(
                   before_.tables, after_.tables, {}, &PageTable::columns, &PageTable::columns)
            && std::ranges::equal(
                before_.cells, after_.cells, {}, &PageCell::firstBlock, &PageCell::firstBlock);
    }
    [[nodiscard]] bool hasTheElements() const
    {
        const auto isAlike = [&](const PageElement& before, const PageElement& after) {
            return before.kind == after.kind
                && moved(before.start, before.start.begin >= offset_) == after.start
                && before.end.empty() == after.end.empty();
        };
        return std::ranges::equal(before_.elements, after_.elements, isAlike);
    }

    const SurfacePage& before_;
    PagePlace place_;
    std::size_t offset_;
    std::size_t item_;
    SurfacePage after_;
};

void expectExactTyping(const std::string& text)
{
    const auto page = readSurfacePage(text, test::rulesOf(text));
    forEachPlace(page, [&](PagePlace place) {
        const AfterTyping typed(page, place);
        ASSERT_TRUE(typed.isAsBefore()) << text << "\n" << typed.text();
    });
    ASSERT_FALSE(testing::Test::HasFailure());
}

TEST(PageProperties, WhatIsTypedShowsUpThereAndChangesNothingElse)
{
    test::forEachSoup(expectExactTyping);
    forEachDeckText(expectExactTyping);
    forEachOldText(expectExactTyping);
}

std::string repeated(std::string_view text, std::size_t length)
{
    std::string result;
    while (result.size() < length)
        result.append(text);
    return result;
}

TEST(PageProperties, PlacesAreExactInLongTexts)
{
    for (const std::string_view piece :
        {"a", "<p>a <a href=\"x\"><b>b</b></a></p>\r\n", "<table><tr><td>a<td></table>"}) {
        const auto page = readSurfacePage(repeated(piece, 32767));
        test::SmallRandom random(1);
        for (int i = 0; i < 100; ++i) {
            const auto place = placeAt(page, random.below(page.text.size()));
            const AfterTyping typed(page, place);
            ASSERT_TRUE(typed.isAsBefore()) << piece << place.block << " " << place.offset;
        }
    }
}

TEST(PageProperties, ReadingTakesTimeAsTheTextIsLong)
{
    constexpr std::size_t kLength = 500'000;
    constexpr double kMilliseconds = 400; // a tenth of it is common
    constexpr std::string_view kPieces[]
        = {"<", "<!--", "<!--x-->", "<!--x--><!--/y-->", "&#1", "&", "<table>", "<table><tr><td>",
            "</td>", "<table><tr></td>", "<table><tr><td></tr>", "<p>", "<b>", "<b></i>", "<a><b>",
            "<a>x", "\r\n", "<!--a", "<img></img>", "<td a=", "<table><td>"};
    for (const auto piece : kPieces) {
        const auto text = repeated(piece, kLength);
        const auto read = [&] { std::ignore = readSurfacePage(text); };
        EXPECT_LT(test::millisecondsOf(read), kMilliseconds) << piece;
        const auto closed = text + repeated("</td></b></a><!--/x-->", kLength);
        const auto readClosed = [&] { std::ignore = readSurfacePage(closed); };
        EXPECT_LT(test::millisecondsOf(readClosed), 3 * kMilliseconds) << piece;
    }
}

} // namespace
} // namespace quillmere
