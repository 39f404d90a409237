#include "editor/page/splice_list.h"

#include "support/small_random.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

TEST(SpliceList, JoinsWhatTouches)
{
    SpliceList changes;
    changes.insert(9, "z");
    changes.remove({2, 4});
    changes.insert(3, "x");
    changes.remove({4, 5});
    changes.insert(5, "y");
    changes.replace({7, 8}, "-");
    changes.remove({3, 4});
    changes.remove({6, 6});
    const auto splices = std::move(changes).take();
    const std::vector<Splice> wanted = {{{2, 5}, "xy"}, {{7, 8}, "-"}, {{9, 9}, "z"}};
    EXPECT_EQ(splices, wanted);
    EXPECT_EQ(spliced("0123456789", splices), "01xy56-8z9");
}

TEST(SpliceList, IsTakenBackByItsReverse)
{
    const std::string text = "0123456789abcdef";
    for (std::uint64_t seed = 0; seed < 500; ++seed) {
        test::SmallRandom random(seed);
        SpliceList changes;
        for (auto count = random.below(6); count > 0; --count) {
            const auto begin = random.below(text.size());
            changes.replace({begin, begin + random.below(text.size() + 1 - begin)},
                std::string(random.below(4), 'x'));
        }
        const SurfaceEdit edit{std::move(changes).take(), 3};
        const auto back = reverse(text, edit, 7);
        EXPECT_EQ(back.caret, 7U);
        EXPECT_EQ(edited(edited(text, edit), back), text) << seed;
        EXPECT_EQ(reverse(edited(text, edit), back, 3).splices, edit.splices) << seed;
    }
}

} // namespace
} // namespace quillmere
