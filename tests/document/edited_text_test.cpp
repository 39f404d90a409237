#include "document/edited_text.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quillmere {
namespace {

constexpr std::string_view kTokens[]
    = {"<", ">", "<p", "</P", "p", "/", "<a", "x", "<!--", "-", "<!--/P", "\xC4"};
constexpr SearchKey kKeys[] = {"<p", "</p", ">", "<", "<a", "p<", "a", "</p>", "<!", "<!--",
    "<!--p", "<!--/p", "</", "<px", "<p<", "-"};

// Searches from anywhere between random changes are held against a search in a plain string,
// which remembers nothing. Changes that join two halves of a key are what goes wrong here.
// Texts of many tags are searched in another way than those of few.
TEST(EditedText, FindsWhatAPlainStringHoldsAfterAnyChanges)
{
    for (std::uint32_t seed = 0; seed < 800; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto upTo = [&random](std::size_t last) { return random() % (last + 1); };
        auto plain = test::randomSoup(seed, kTokens, 1 + upTo(seed % 2 == 0 ? 30 : 300));
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
                const auto at = findIgnoringCase(plain, key.text, from);
                const auto found = edited.find(key, from, limit);
                ASSERT_TRUE(found == at || (found == npos && at >= limit)) << plain << key.text;
            } else {
                ASSERT_EQ(edited.find(key, from), findIgnoringCase(plain, key.text, from)) << plain;
                ASSERT_EQ(edited.findLast(key, from), findLastIgnoringCase(plain, key.text, from));
            }
            ASSERT_EQ(edited.copy(0, edited.size()), plain);
            if (upTo(20) == 0) {
                ASSERT_EQ(edited.whole(), plain);
            }
        }
        EXPECT_EQ(std::move(edited).take(), plain);
    }
}

TEST(EditedText, ReadsAgainWhatAnOperationChanged)
{
    EditedText text("<a><b>");
    EXPECT_EQ(text.find("<b"), 3U);
    text.rework([](std::string& whole) { whole.replace(1, 1, "p"); });
    EXPECT_EQ(text.find("<a"), npos);
    EXPECT_EQ(text.find("<p"), 0U);
    TextEdits edits;
    edits.insert(3, "<i>");
    edits.drop(3, 6);
    text.apply(edits);
    EXPECT_EQ(text.find("<i"), 3U);
    EXPECT_EQ(std::move(text).take(), "<p><i>");
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
