#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace quillmere::test {
namespace {

constexpr std::array<std::string_view, 2> kTokens{"<p>", "x"};

TEST(TokenSoup, GivesEachSequenceOnce)
{
    std::multiset<std::string> texts;
    forEachSequence(kTokens, 2, [&](const std::string& text) { texts.insert(text); });
    EXPECT_EQ(texts, (std::multiset<std::string>{"", "<p>", "x", "<p><p>", "<p>x", "x<p>", "xx"}));
}

TEST(TokenSoup, RepeatsItselfForASeed)
{
    EXPECT_EQ(randomSoup(1, kTokens, 50), randomSoup(1, kTokens, 50));
    EXPECT_NE(randomSoup(1, kTokens, 50), randomSoup(2, kTokens, 50));
}

} // namespace
} // namespace quillmere::test
