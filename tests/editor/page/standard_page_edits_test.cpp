#include "editor/page/page_edits.h"
#include "support/edit_checks.h"
#include "support/standard_edits.h"

#include <gtest/gtest.h>

// The surface's own edits on areas of decks that are opened without loss.

namespace quillmere {
namespace {

test::StandardEdit tried(test::SmallRandom& random, const std::string& text)
{
    const auto page = readSurfacePage(text, OutputRules(true));
    const auto edit = test::randomEdit(random, page);
    return {"operation " + std::to_string(static_cast<int>(edit.operation)),
        edited(text, edit.on(page), page.rules)};
}

TEST(StandardPageEdits, LeaveDecksWellFormedAndValid)
{
    test::expectGoodDecks(1500, 3, tried);
}

} // namespace
} // namespace quillmere
