#include "document/changes/deck_changes.h"
#include "document/changes/sequence_match.h"
#include "generator/deck_generator.h"
#include "support/longest_common.h"
#include "support/row_file.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

/// A short form of a change: kind, what it concerns, texts, place in what was read and written.
std::string shortForm(const DeckChange& change)
{
    constexpr char kKinds[] = {'-', '+', '~', '>'};
    std::string form(1, kKinds[static_cast<int>(change.kind)]);
    if (change.subject == DeckChange::Subject::Attribute)
        form += change.element + '.' + change.attribute + ' ';
    form += change.before;
    if (!change.after.empty() && change.after != change.before) form += "=>" + change.after;
    for (const auto& place : {change.readAt, change.writtenAt}) {
        if (place) form += ' ' + std::to_string(place->line) + ':' + std::to_string(place->column);
    }
    return form;
}

std::string changesOf(std::string_view read, std::string_view written)
{
    std::string all;
    for (const auto& change : DeckChanges(read, written).changes)
        all += (all.empty() ? "" : " | ") + shortForm(change);
    return all;
}

TEST(DeckChanges, ToldWithTheirPlaces)
{
    for (const auto& row : test::rowsOf("deck_changes.txt"))
        EXPECT_EQ(changesOf(row.at(0), row.at(1)), row.at(2)) << row.at(0);
}

TEST(DeckChanges, NothingChangesBetweenADeckAndItself)
{
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const auto deck = bench::generateDeck(seed, {.targetBytes = 800, .brokenness = 0.2});
        ASSERT_EQ(changesOf(deck, deck), "") << "seed " << seed;
    }
    const auto report = DeckChanges("<p>x", "<p>\n<b>x</p>");
    ASSERT_TRUE(report.fault);
    EXPECT_EQ(report.fault->writtenAt, (TextPlace{2, 5}));
    EXPECT_FALSE(report.wellFormed());
}

TEST(SequenceMatch, IsALongestListOfEqualPairs)
{
    for (std::uint64_t seed = 0; seed < 2000; ++seed) {
        test::SmallRandom random(seed);
        const bool isLong = seed < 5; // of several windows, which need not give the longest
        std::vector<int> lists[2];
        for (auto& list : lists)
            for (auto length = isLong ? 900 : random.below(40); length > 0; --length)
                list.push_back(static_cast<int>(random.below(isLong ? 300 : 1 + seed % 7)));
        const auto pairs = matchSequences(lists[0], lists[1]);
        std::size_t left = 0;
        std::size_t right = 0;
        for (const auto& pair : pairs) {
            ASSERT_TRUE(pair.left >= left && pair.right >= right) << "seed " << seed;
            ASSERT_EQ(lists[0].at(pair.left), lists[1].at(pair.right)) << "seed " << seed;
            left = pair.left + 1;
            right = pair.right + 1;
        }
        const auto longest = test::longestCommonPart(lists[0], lists[1]);
        ASSERT_TRUE(isLong ? 2 * pairs.size() > longest : pairs.size() == longest) << seed;
    }
}

} // namespace
} // namespace quillmere
