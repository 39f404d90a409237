#include "document/edited_text.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quillmere {
namespace {

constexpr std::string_view kTokens[] = {"<", ">", "<p", "</P", "p", "/", "<a", "x"};
constexpr std::string_view kKeys[] = {"<p", "</p", ">", "<", "<a", "p<", "a", "</p>"};

// Searches from anywhere between random changes are held against a search in a plain string,
// which remembers nothing. Changes that join two halves of a key are what goes wrong here.
TEST(EditedText, FindsWhatAPlainStringHoldsAfterAnyChanges)
{
    for (std::uint32_t seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto upTo = [&random](std::size_t last) { return random() % (last + 1); };
        auto plain = test::randomSoup(seed, kTokens, 1 + upTo(30));
        EditedText edited{std::string(plain)};
        for (int step = 0; step < 60; ++step) {
            const auto key = kKeys[upTo(std::size(kKeys) - 1)];
            const auto from = upTo(plain.size() + 1);
            if (upTo(3) == 0) {
                const auto begin = upTo(plain.size());
                const auto end = begin + upTo(std::min<std::size_t>(plain.size() - begin, 6));
                const auto piece
                    = test::randomSoup(seed + static_cast<std::uint32_t>(step), kTokens, upTo(3));
                plain.replace(begin, end - begin, piece);
                edited.replace(begin, end, piece);
            } else if (upTo(2) == 0) {
                const auto limit = upTo(plain.size());
                const auto at = findIgnoringCase(plain, key, from);
                const auto found = edited.find(key, from, limit);
                ASSERT_TRUE(found == at || (found == npos && at >= limit)) << plain << key;
            } else {
                ASSERT_EQ(edited.find(key, from), findIgnoringCase(plain, key, from)) << plain;
                ASSERT_EQ(edited.findLast(key, from), findLastIgnoringCase(plain, key, from));
            }
            ASSERT_EQ(edited.copy(0, edited.size()), plain);
        }
        EXPECT_EQ(std::move(edited).take(), plain);
    }
}

TEST(EditedText, CutsATagThroughItsFirstBracketOrNothing)
{
    EditedText text("a<p x='>'>b<p");
    EXPECT_EQ(text.tagEnd(1), 8U);
    EXPECT_EQ(text.cutTag(1), 7U);
    EXPECT_EQ(text.cutTag(text.find("<p")), 0U);
    EXPECT_EQ(std::move(text).take(), "a'>b<p");
}

} // namespace
} // namespace quillmere
