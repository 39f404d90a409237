#include "support/standard_edits.h"

#include "document/changes/deck_changes.h"
#include "document/design_text.h"
#include "document/wml/repaired_file.h"
#include "generator/deck_generator.h"
#include "generator/wml_generator.h"
#include "support/small_deck.h"
#include "support/wml_validity.h"

#include <gtest/gtest.h>

namespace quillmere::test {
namespace {

void expectGoodDeck(std::uint64_t seed, bool isPlain, const EditArea& edit)
{
    const auto file
        = isPlain ? bench::generateDeck(seed, {.targetBytes = 900}) : bench::generateWml(seed);
    SmallRandom random(seed);
    SmallDeck deck(0, true);
    deck.load(file);
    const auto area = random.below(areaCount(deck.session.deck));
    const auto edited = edit(random, ReadDesignText(deck.session, area));
    SCOPED_TRACE(edited.name);
    WriteDesignText(deck.session, area, edited.text);
    const auto written = deck.written();
    EXPECT_TRUE(repairFile(written).mends.empty()) << file << written;
    EXPECT_FALSE(deckFault(written)) << file << written;
    EXPECT_EQ(isPlain && !edited.mayBreakRules ? wmlFaults(written) : "", "") << file << written;
}

} // namespace

void expectGoodDecks(std::uint64_t decks, std::uint64_t plainEvery, const EditArea& edit)
{
    for (std::uint64_t seed = 0; seed < decks && !::testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectGoodDeck(seed, seed % plainEvery == 0, edit);
    }
}

} // namespace quillmere::test
