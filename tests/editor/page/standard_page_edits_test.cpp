#include "document/changes/deck_changes.h"
#include "document/design_text.h"
#include "document/wml/repaired_file.h"
#include "editor/page/page_edits.h"
#include "generator/deck_generator.h"
#include "generator/wml_generator.h"
#include "support/edit_checks.h"
#include "support/small_deck.h"
#include "support/small_random.h"
#include "support/wml_validity.h"

#include <gtest/gtest.h>

// The surface's own edits on areas of decks that are opened without loss.

namespace quillmere {
namespace {

using Operation = test::TriedEdit::Operation;

/// Whether the rules of WML may be kept: what is pasted may stand where it is not allowed.
bool mayStayValid(const test::TriedEdit& edit)
{
    return edit.operation != Operation::Paste;
}

/// `isPlain`: a deck that keeps the rules of WML; else of all elements, with values of any kind.
void expectGoodDeckBehindEdit(std::uint64_t seed, bool isPlain)
{
    const auto file
        = isPlain ? bench::generateDeck(seed, {.targetBytes = 900}) : bench::generateWml(seed);
    test::SmallRandom random(seed);
    test::SmallDeck deck(0, true);
    deck.load(file);
    const auto area = random.below(areaCount(deck.session.deck));
    const auto page = readSurfacePage(ReadDesignText(deck.session, area));
    const auto tried = test::randomEdit(random, page);
    SCOPED_TRACE("operation " + std::to_string(static_cast<int>(tried.operation)));
    WriteDesignText(deck.session, area, edited(page.text, tried.on(page)));
    const auto written = deck.written();
    EXPECT_TRUE(repairFile(written).mends.empty()) << written;
    EXPECT_FALSE(deckFault(written)) << written;
    const auto faults = isPlain && mayStayValid(tried) ? test::wmlFaults(written) : "";
    EXPECT_EQ(faults, "") << file << written;
}

TEST(StandardPageEdits, LeaveDecksWellFormedAndValid)
{
    for (std::uint64_t seed = 0; seed < 1500; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectGoodDeckBehindEdit(seed, seed < 600);
    }
}

} // namespace
} // namespace quillmere
