#include "document/wml/repaired_file.h"

#include "document/platform/files.h"
#include "document/text/failure.h"
#include "document/text/limits.h"
#include "generator/deck_generator.h"
#include "generator/wml_generator.h"
#include "support/stopwatch.h"
#include "support/wml_checks.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

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

/// Decks as the tools of many hands write them. Those called "broken_..." have what is expected of
/// them beside them, the others stay as they are.
TEST(RepairedFile, DecksOfOtherTools)
{
    namespace fs = std::filesystem;
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(QUILLMERE_SOURCE_DIR "/tests/data/wml")) {
        if (entry.path().extension() != ".wml") continue;
        SCOPED_TRACE(entry.path().filename());
        const auto deck = readFile(entry.path().string());
        const auto expected = fs::path(entry.path()).replace_extension(".expected").string();
        const bool isBroken = entry.path().filename().string().starts_with("broken_");
        const auto repaired = repairFile(deck);
        EXPECT_EQ(repaired.bytes, isBroken ? readFile(expected) : deck);
        EXPECT_EQ(repaired.mends.empty(), !isBroken);
        EXPECT_TRUE(repairFile(repaired.bytes).mends.empty());
        ++count;
    }
    EXPECT_GE(count, 42U);
}

TEST(RepairedFile, TakesTimeInProportionToLength)
{
    constexpr std::string_view kShapes[] = {"<", "<a", "<a b=\"", "<b>", "</b>", "<b><i></b>x</i>",
        "<i>", "<p>x", "</card>x", "<card id='a'>", "<a b c", "<!--", "<![CDATA[", "<?xml ", "&",
        "]]>", "<optgroup><tr>", "<p><table></p>", "<b id='a'>", "<!DOCTYPE a [", "<x y='", " ",
        "\xC3", "</a><br>", "a b='' "};
    for (const auto shape : kShapes) {
        for (const std::string_view ahead : {"", "<wml><card><p>", "<a ", "<b><i><u><p><b>"}) {
            std::string deck(ahead);
            while (deck.size() + shape.size() < 100000)
                deck += shape;
            const auto ms = test::millisecondsOf([&] { (void)repairFile(deck); });
            EXPECT_LT(ms, 600) << ahead << "... " << shape;
        }
    }
    EXPECT_THROW((void)repairFile(std::string(kMaxLosslessDeckLength + 1, ' ')), DeckTooLong);
}

} // namespace
} // namespace quillmere
