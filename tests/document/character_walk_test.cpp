#include "document/text/character_walk.h"

#include "document/text/text_search.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(CharacterWalk, FindsWhatASearchFromEachPlaceFinds)
{
    constexpr std::string_view kTokens[] = {"<", ">", "x<", "ein Wort", "<<<<", "\xE4\xBC\r\n "};
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        const auto text = test::randomSoup(seed, kTokens, seed);
        CharacterWalk walk(text, '<');
        CharacterWalk leaps(text, '<');
        std::size_t from = 0;
        for (auto at = text.find('<'); at != npos; at = text.find('<', at + 1)) {
            ASSERT_EQ(walk.next(), at);
            if (at < from) continue;
            ASSERT_EQ(leaps.nextFrom(from), at);
            from = at + 1 + at % 90;
        }
        ASSERT_EQ(walk.next(), npos);
        if (text.size() < sizeof(CharacterBlock)) continue;
        ASSERT_EQ(
            character_marks::of(text.data(), '<'), character_marks::portable(text.data(), '<'));
    }
}

} // namespace
} // namespace quillmere
