#include "document/wml/repaired_file.h"

#include "document/text/failure.h"
#include "document/text/limits.h"
#include "generator/deck_generator.h"
#include "generator/wml_generator.h"
#include "support/wml_checks.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillmere {
namespace {

/// How many decks each test makes: QUILLMERE_DECKS, or as many as take a second.
std::uint64_t deckCount(std::uint64_t usual)
{
    const char* const wanted = std::getenv("QUILLMERE_DECKS");
    return wanted == nullptr ? usual : std::strtoull(wanted, nullptr, 10);
}

TEST(RepairedFile, LeavesWellFormedDecksAsTheyAre)
{
    for (std::uint64_t seed = 0; seed < deckCount(2000); ++seed) {
        const auto deck = seed % 4 == 0 ? bench::generateDeck(seed) : bench::generateWml(seed);
        const auto repaired = repairFile(deck);
        ASSERT_EQ(repaired.bytes, deck) << "seed " << seed;
        ASSERT_TRUE(repaired.mends.empty()) << "seed " << seed;
    }
}

TEST(RepairedFile, MendsBrokenDecksOnceAndLosesNoWord)
{
    for (std::uint64_t seed = 0; seed < deckCount(3000); ++seed) {
        const auto whole = seed % 4 == 0 ? bench::generateDeck(seed, {.targetBytes = 700})
                                         : bench::generateWml(seed, false);
        const auto deck = bench::breakDeck(whole, seed, static_cast<int>(1 + seed % 7));
        ASSERT_EQ(test::brokenPromise(deck), "") << "seed " << seed << "\n"
                                                 << deck << "\n=>\n"
                                                 << repairFile(deck).bytes;
    }
}

} // namespace
} // namespace quillmere
