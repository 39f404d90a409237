#include "support/marked_text.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(DeleteRange, TakesWholesAndKeepsTheRestAsItIs)
{
    test::expectEdits(deleteRange, test::editRowsOf("deleted_ranges.txt"));
}

TEST(DeleteBackwardAndForward, TakeOneItemOrTheBorderToANeighbour)
{
    for (const auto& row : test::rowsOf("deleted_neighbours.txt")) {
        SCOPED_TRACE(row.at(0));
        const test::MarkedPage marked(row.at(1));
        const auto apply = [&](auto operation) {
            return test::editedWithCaret(marked.page, operation(marked.page, marked.from));
        };
        EXPECT_EQ(apply(deleteBackward), row.at(2));
        EXPECT_EQ(apply(deleteForward), row.at(3));
    }
}

TEST(RemoveFormats, ClosesAFormatAheadAndOpensItAgainBehind)
{
    test::expectEdits(removeFormats, test::editRowsOf("removed_formats.txt"));
    test::expectEdits(removeFormats,
        {{"a link as a whole", "<b>a<a>b[c]d</a>e</b>", "<b>a</b><a>bc|d</a><b>e</b>"}},
        OutputRules(true));
}

} // namespace
} // namespace quillmere
