// What holds for every page, whatever its text.

#include "editor/page/page_places.h"
#include "support/area_texts.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

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
        expectOrderedPlaces(page);
        ASSERT_FALSE(testing::Test::HasFailure()) << text;
    };
    test::forEachSoup(check);
    forEachDeckText(check);
}

std::string repeated(std::string_view text, std::size_t length)
{
    std::string result;
    while (result.size() < length)
        result.append(text);
    return result;
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
