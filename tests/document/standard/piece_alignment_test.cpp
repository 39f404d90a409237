#include "document/standard/piece_alignment.h"

#include "document/standard/new_runs.h"
#include "support/longest_common.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using Keys = std::vector<std::uint64_t>;
using Places = std::vector<std::uint32_t>;

/// How much stays, after a look at what an alignment must be.
std::size_t kept(const Keys& then, const Keys& now, const Places& places)
{
    std::size_t count = 0;
    std::uint32_t next = 0;
    EXPECT_EQ(places.size(), now.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] == kNoPiece) continue;
        EXPECT_GE(places[i], next);
        EXPECT_EQ(then[places[i]], now[i]);
        next = places[i] + 1;
        ++count;
    }
    return count;
}

Keys randomKeys(test::SmallRandom& random, std::size_t length, std::size_t kinds)
{
    Keys keys(length);
    for (auto& key : keys)
        key = random.below(kinds);
    return keys;
}

TEST(AlignPieces, KeepsAsMuchAsCanBe)
{
    for (std::uint64_t seed = 0; seed < 3000; ++seed) {
        test::SmallRandom random(seed);
        const auto kinds = 1 + random.below(6);
        const auto then = randomKeys(random, random.below(24), kinds);
        auto now = random.chance(0.5) ? randomKeys(random, random.below(24), kinds) : then;
        if (!now.empty())
            now.erase(now.begin() + static_cast<std::ptrdiff_t>(random.below(now.size())));
        const auto places = alignPieces(then, now);
        ASSERT_EQ(kept(then, now, places), test::longestCommonPart(then, now)) << seed;
        EXPECT_EQ(inverted(inverted(places, then.size()), now.size()), places);
    }
}

TEST(SettleRuns, MovesANewRunToWhereItIsAnElement)
{
    const auto turnsOf = [](const std::string& text) {
        std::vector<PieceTurn> turns;
        for (const char c : text)
            turns.push_back(c == '(' || c == '[' ? PieceTurn::Opens
                    : c == ')' || c == ']'       ? PieceTurn::Closes
                                                 : PieceTurn::None);
        return turns;
    };
    struct Row {
        std::string then, now, kept; ///< kept: the pieces of `now` that stayed
    };
    const Row rows[] = {
        {"(b)", "(a)(b)", "   (b)"},
        {"(a)", "(a)(b)", "(a)   "},
        {"(a)(c)", "(a)(b)(c)", "(a)   (c)"},
        {"(a[x])", "(a[x][x])", "(a[x]   )"},
        {"(ab)", "(aab)", "(a b)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.now);
        const Keys then(row.then.begin(), row.then.end());
        const Keys now(row.now.begin(), row.now.end());
        auto places = alignPieces(then, now);
        settleRuns(now, turnsOf(row.now), places);
        EXPECT_EQ(kept(then, now, places), then.size());
        auto shown = row.now;
        for (std::size_t i = 0; i < shown.size(); ++i)
            if (places[i] == kNoPiece) shown[i] = ' ';
        EXPECT_EQ(shown, row.kept);
    }
}

} // namespace
} // namespace quillmere
