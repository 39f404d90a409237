#include "cli/core_session.h"
#include "document/deck_repair.h"
#include "document/text/failure.h"
#include "document/text/limits.h"
#include "generator/deck_generator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

// What holds for the repair of any deck by the conversions, tried on generated ones.

namespace quillmere {
namespace {

struct Trial {
    std::string name, deck;
    bool isBroken;
};

/// Calls `use` with whole and broken decks in plain and indented lines. A value without its closing
/// quote may fail, and a long deck may have no room for what its repair puts in.
template <class Use> void forEachTrial(std::uint64_t seeds, std::size_t bytes, const Use& use)
{
    for (std::uint64_t i = 0; i < 12 * seeds; ++i) {
        const double brokenness[] = {0.0, 0.01, 0.05};
        Trial trial{"seed " + std::to_string(i), {}, i % 3 != 0};
        trial.deck
            = bench::generateDeck(i / 12, {.targetBytes = bytes, .brokenness = brokenness[i % 3]});
        if (i % 4 < 2) trial.deck = std::regex_replace(trial.deck, std::regex("\n"), "\n  ");
        SCOPED_TRACE(trial.name);
        try {
            use(trial);
        } catch (const InvalidArgument&) {
            EXPECT_TRUE(trial.isBroken);
        } catch (const Overflow&) {
            EXPECT_GT(trial.deck.size(), kMaxTextLength / 2);
        }
    }
}

std::string repaired(const std::string& deck)
{
    cli::CoreSession core(false);
    return repairedDeck(core.session, deck);
}

TEST(RepairedDecks, StayAsTheyAreFromTheThirdRepairOnWhereTheyWereWhole)
{
    int stayAtOnce = 0, all = 0;
    forEachTrial(60, 500, [&](const Trial& trial) {
        if (trial.isBroken) return;
        const auto written = repaired(trial.deck);
        const auto again = repaired(written);
        const auto third = repaired(again);
        EXPECT_EQ(repaired(third), third);
        stayAtOnce += again == written ? 1 : 0;
        ++all;
    });
    EXPECT_GT(2 * stayAtOnce, all);
}

void expectBounds(const Trial& trial)
{
    cli::CoreSession core(false);
    const auto written = repairedDeck(core.session, trial.deck);
    EXPECT_LE(written.size(), kMaxTextLength + 2); // the last line's end comes on top
    EXPECT_TRUE(written.ends_with("</wml>\r\n"));
    EXPECT_TRUE(std::none_of(written.begin(), written.end(),
        [](char c) { return static_cast<unsigned char>(c) > 126; }));
    for (std::size_t area = 0; area < areaCount(core.session.deck); ++area) {
        const auto& record = core.session.deck[area];
        const auto design = core.workFiles.read(record.designDir + record.designFile);
        EXPECT_LE(design.size(), kMaxTextLength + 500); // and the page around the text
        // The marker, the do block, the page's head, all content in one line, and its tail.
        EXPECT_TRUE(design.ends_with("\r\n</BODY>\r\n</HTML>\r\n")) << design;
        EXPECT_EQ(std::count(design.begin(), design.end(), '\n'), 9) << design;
    }
}

TEST(RepairedDecks, KeepTheirBounds)
{
    forEachTrial(40, 1000, expectBounds);
    forEachTrial(5, 31000, expectBounds);
}

} // namespace
} // namespace quillmere
