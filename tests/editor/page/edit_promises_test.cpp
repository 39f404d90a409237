// What holds for every edit of every text: see faultOf.

#include "support/area_texts.h"
#include "support/edit_checks.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace quillmere {
namespace {

using Fault = std::string (*)(const SurfacePage&, const test::TriedEdit&);

std::string toldOf(const SurfacePage& page, const test::TriedEdit& tried)
{
    return testing::PrintToString(page.text) + "\n->\n"
        + testing::PrintToString(edited(page.text, tried.on(page), page.rules)) + "\noperation "
        + std::to_string(static_cast<int>(tried.operation)) + " at "
        + std::to_string(tried.from.block) + "." + std::to_string(tried.from.offset) + " to "
        + std::to_string(tried.to.block) + "." + std::to_string(tried.to.offset);
}

/// Edits one after the other, each on the text that the one before left.
void expectSoundEdits(std::string text, std::uint64_t seed, int edits, Fault faultOf)
{
    test::SmallRandom random(seed);
    const auto rules = test::rulesOf(text);
    for (int i = 0; i < edits; ++i) {
        const auto page = readSurfacePage(std::move(text), rules);
        const auto tried = test::randomEdit(random, page);
        ASSERT_EQ(faultOf(page, tried), "") << toldOf(page, tried) << "\nseed " << seed;
        text = edited(page.text, tried.on(page), rules);
    }
}

TEST(EditPromises, HoldInAnyText)
{
    test::forEachSoup([seed = std::uint64_t{0}](const std::string& text) mutable {
        if (testing::Test::HasFailure()) return;
        expectSoundEdits(text, ++seed, 12, test::faultOf);
    });
}

TEST(EditPromises, HoldInDecks)
{
    const auto expectAll = [](int edits, Fault faultOf) {
        return [=, seed = std::uint64_t{0}](const std::string& text) mutable {
            if (testing::Test::HasFailure()) return;
            expectSoundEdits(text, ++seed, edits, faultOf);
        };
    };
    test::forEachDeckText(0, expectAll(25, test::faultInGoodText));
    test::forEachDeckText(0.2, expectAll(25, test::faultOf));
    test::forEachFormText(expectAll(25, test::faultInGoodText));
}

} // namespace
} // namespace quillmere
