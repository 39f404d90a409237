#include "document/text_search.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillmere {
namespace {

constexpr std::string_view kTokens[] = {"<p", "</P", ">", "x", "P", "<", "<P>&nbsp;x", "\xE4"};

TEST(TextSearch, FindsKeysInAnyCaseFromEitherEnd)
{
    const std::string text = "a<P><p ALIGN><bR>";
    EXPECT_EQ(findIgnoringCase(text, "<p"), 1U);
    EXPECT_EQ(findIgnoringCase(text, "<p", 2), 4U);
    EXPECT_EQ(findIgnoringCase(text, "<br>", 5), 13U);
    EXPECT_EQ(findIgnoringCase(text, "align"), 7U);
    EXPECT_EQ(findIgnoringCase(text, "<p", 5), npos);
    EXPECT_EQ(findLastIgnoringCase(text, "<p"), 4U);
    EXPECT_EQ(findLastIgnoringCase(text, "<p", 4), 1U);
    EXPECT_EQ(findLastIgnoringCase(text, "<p", 1), npos);
}

// Long enough for whole blocks, with keys on either side of each border between two.
TEST(TextSearch, FindsAllKeysOfALongText)
{
    const std::string text = test::randomSoup(1, kTokens, 300);
    for (const std::string_view key : {"<p", "</p", "<", ">", "x", "px", "<p>&nbsp;x"}) {
        for (std::size_t from = 0; from <= text.size(); ++from) {
            auto at = from;
            while (at < text.size() && !standsAt(text, at, key))
                ++at;
            ASSERT_EQ(findIgnoringCase(text, key, from), at < text.size() ? at : npos)
                << key << from;
        }
    }
}

TEST(TextSearch, ForwardFinderAgreesWithPlainSearchFromAnyPlace)
{
    const std::string text = "<p<<p>x</p><P";
    ForwardFinder finder(text, "<p");
    for (const std::size_t from : std::vector<std::size_t>{0, 1, 2, 3, 4, 12, 11, 0, 13, 14, 2})
        EXPECT_EQ(finder.next(from), findIgnoringCase(text, "<p", from)) << from;
}

TEST(TextSearch, RewriterKeepsDropsAndInserts)
{
    const std::string text = "0123456789";
    Rewriter rewriter(text);
    rewriter.insert(2, "ab");
    rewriter.drop(4, 6);
    rewriter.drop(5, 7); // partly dropped already
    rewriter.insert(7, "c");
    EXPECT_EQ(rewriter.take(), "01ab23c789");
}

} // namespace
} // namespace quillmere
