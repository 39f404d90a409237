#include "document/sequence_match.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <numeric>

namespace quillmere {
namespace {

std::size_t longestCommonLength(const std::vector<int>& a, const std::vector<int>& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (const int value : a) {
        std::size_t diagonal = 0;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const auto above = row[j + 1];
            row[j + 1] = value == b[j] ? diagonal + 1 : std::max(above, row[j]);
            diagonal = above;
        }
    }
    return row.back();
}

/// Checks that the pairs rise and are equal.
void checkPairs(
    const std::vector<int>& a, const std::vector<int>& b, const std::vector<MatchedPair>& pairs)
{
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        ASSERT_EQ(a.at(pairs[i].left), b.at(pairs[i].right));
        if (i == 0) continue;
        ASSERT_LT(pairs[i - 1].left, pairs[i].left);
        ASSERT_LT(pairs[i - 1].right, pairs[i].right);
    }
}

std::vector<int> randomSequence(test::SmallRandom& random, std::size_t length, std::size_t values)
{
    std::vector<int> sequence(length);
    for (int& value : sequence)
        value = static_cast<int>(random.below(values));
    return sequence;
}

TEST(SequenceMatch, IsALongestListOnShortSequences)
{
    for (std::uint64_t seed = 0; seed < 2000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        test::SmallRandom random(seed);
        const auto a = randomSequence(random, random.below(40), 1 + seed % 7);
        const auto b = randomSequence(random, random.below(40), 1 + seed % 7);
        const auto pairs = matchSequences(a, b);
        checkPairs(a, b, pairs);
        ASSERT_EQ(pairs.size(), longestCommonLength(a, b));
    }
}

TEST(SequenceMatch, StaysGoodBeyondOneWindow)
{
    test::SmallRandom random(7);
    auto a = randomSequence(random, 4000, 300);
    auto b = a;
    for (int edits = 0; edits < 500; ++edits)
        b.erase(b.begin() + static_cast<std::ptrdiff_t>(random.below(b.size())));
    const auto pairs = matchSequences(a, b);
    checkPairs(a, b, pairs);
    EXPECT_GT(pairs.size(), b.size() * 98 / 100);
}

TEST(SequenceMatch, TakesNoLongerThanTheLengthsAllow)
{
    std::vector<int> rising(20000);
    std::iota(rising.begin(), rising.end(), 0);
    const std::vector<int> falling(rising.rbegin(), rising.rend());
    test::SmallRandom random(1);
    const auto begin = std::chrono::steady_clock::now();
    checkPairs(rising, falling, matchSequences(rising, falling));
    const auto a = randomSequence(random, 20000, 3);
    const auto b = randomSequence(random, 20000, 3);
    checkPairs(a, b, matchSequences(a, b));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
}

} // namespace
} // namespace quillmere
