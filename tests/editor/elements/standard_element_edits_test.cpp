#include "document/changes/deck_changes.h"
#include "document/design_text.h"
#include "document/wml/repaired_file.h"
#include "editor/elements/link_edit.h"
#include "editor/elements/option_edit.h"
#include "editor/elements/paragraph_alignment.h"
#include "editor/elements/table_edit.h"
#include "editor/elements/text_formats.h"
#include "generator/deck_generator.h"
#include "generator/wml_generator.h"
#include "support/small_deck.h"
#include "support/small_random.h"
#include "support/wml_validity.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

// The edits of the dialogs on areas of decks that are opened without loss.

namespace quillmere {
namespace {

const OutputRules kRules(true);

struct Operation {
    const char* name;
    std::function<std::string(const std::string& text, std::size_t place, std::size_t length)> run;
};

int positionOf(std::size_t place)
{
    return static_cast<int>(place) + 1;
}

const std::array kOperations{
    Operation{"InsertTable",
        [](const auto& text, auto place, auto) {
            return InsertTable(text, positionOf(place), {"T", "L", 2, 2}, kRules).text;
        }},
    Operation{"SetOption",
        [](const auto& text, auto place, auto) {
            return SetOption(text, positionOf(place), false, {"Neu", "#k1"}, kRules).text;
        }},
    Operation{"SetLink",
        [](const auto& text, auto place, auto) {
            return SetLink(text, positionOf(place), {"Neu", "#k1"}, kRules).text;
        }},
    Operation{"alignLines",
        [](const auto& text, auto place, auto length) {
            return alignLines(text, {place, place + length}, Alignment::Center, kRules).text;
        }},
    Operation{"formatText",
        [](const auto& text, auto place, auto length) {
            TextFormats bold;
            bold.bold = true;
            return formatText(text, {place, place + length}, bold, kRules).text;
        }},
};

/// `isPlain`: a deck that keeps the rules of WML; else of all elements, with values of any kind.
void expectGoodDeck(std::uint64_t seed, bool isPlain)
{
    const auto file
        = isPlain ? bench::generateDeck(seed, {.targetBytes = 900}) : bench::generateWml(seed);
    test::SmallRandom random(seed);
    test::SmallDeck deck(0, true);
    deck.load(file);
    const auto area = random.below(areaCount(deck.session.deck));
    const auto text = ReadDesignText(deck.session, area);
    const auto& operation = kOperations.at(seed % kOperations.size());
    SCOPED_TRACE(operation.name);
    const auto begin = text.find('>', text.find("<BODY")) + 1;
    const auto place = begin + random.below(text.rfind("</BODY>") - begin + 1);
    const auto length = random.below(text.size() - place);
    WriteDesignText(deck.session, area, operation.run(text, place, length));
    const auto written = deck.written();
    EXPECT_TRUE(repairFile(written).mends.empty()) << written;
    EXPECT_FALSE(deckFault(written)) << written;
    EXPECT_EQ(isPlain ? test::wmlFaults(written) : "", "") << file << written;
}

TEST(StandardElementEdits, LeaveDecksWellFormedAndValid)
{
    for (std::uint64_t seed = 0; seed < 1000 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectGoodDeck(seed, seed % 8 == 0);
    }
}

} // namespace
} // namespace quillmere
