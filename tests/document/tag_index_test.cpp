#include "document/text/tag_index.h"

#include "document/text/text_search.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr std::string_view kPieces[]
    = {"<", "!", "-", "--", "/", "p", "B", ">", " ", "\xE4", "<!--", "</", "<p"};

constexpr SearchKey kKeys[]
    = {"<", "<!", "<!-", "<!--", "<!--/", "<!--p", "<!--/pb", "</", "</p", "<p", "<p>", "<pb",
        "<b/p", "<pbpb/bp", "<!--/pbbp<p<", "<!p", "<!-p", "<//", "<!---", "<!--//"};

// A pattern may let other tags through, but none with its key may be missed, and what is told to
// be whole has to be the key.
TEST(TagPattern, FitsEachTagThatBeginsWithItsKey)
{
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        const auto tag = "<" + test::randomSoup(seed, kPieces, 5);
        const auto code = tagCode(std::string_view(tag).substr(0, kTagCodeReach));
        for (const auto& key : kKeys) {
            const bool stands = standsAt(tag, 0, key.text);
            const bool fits = key.pattern.fits(code);
            EXPECT_TRUE(fits || !stands) << tag << ' ' << key.text;
            EXPECT_TRUE(!key.pattern.isWhole || fits == stands) << tag << ' ' << key.text;
        }
    }
}

TEST(TagIndex, FindsFirstAndLastOfARange)
{
    TagIndex tags;
    tags.read("<p>1<a>2<P>3</p>");
    const SearchKey key = "<p";
    EXPECT_EQ(tags.find(key.pattern, 0, npos), 0U);
    EXPECT_EQ(tags.find(key.pattern, 1, npos), 8U);
    EXPECT_EQ(tags.find(key.pattern, 1, 8), npos);
    EXPECT_EQ(tags.findLast(key.pattern, 0, npos), 8U);
    EXPECT_EQ(tags.findLast(key.pattern, 0, 8), 0U);
    EXPECT_EQ(tags.findLast(key.pattern, 1, 8), npos);
}

} // namespace
} // namespace quillmere
