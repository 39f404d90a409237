#include "document/wml_layout.h"

#include "literal/corrections.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>

namespace quillmere {
namespace {

void expectBreaksAgree(const std::string& text)
{
    std::string fast = text;
    std::string slow = text;
    BreakWmlLines(fast);
    literal::BreakWmlLines(slow);
    ASSERT_EQ(fast, slow) << text;
}

void expectWhitespaceAgrees(const std::string& text, const std::string& pristine)
{
    std::string fast = text;
    std::string slow = text;
    RestoreWhitespace(fast, pristine);
    literal::RestoreWhitespace(slow, pristine);
    ASSERT_EQ(fast, slow) << text << "|" << pristine;
}

TEST(BreakWmlLines, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 6> kFew{"<wml>", "</p>", "<p>", "<i>", "</i>", "<"};
    test::forEachSequence(kFew, 6, expectBreaksAgree);
    constexpr std::array<std::string_view, 14> kPieces{"<p>", "</p>", "<br/>", "<I>", "</td>",
        "<small>", "x", "some longer text", "<b>", "</b>", "</p>", "</p>", "<", "</u>"};
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        expectBreaksAgree("a<p><WML>" + test::randomSoup(seed, kPieces, 60));
    }
}

TEST(RestoreWhitespace, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 14> kPieces{"<p>", "</p>", "<p a>", "<", ">", " ",
        "\r\n", "x", "<P>", "<>", "<b/>", "<card>", "\t", "</"};
    for (std::uint32_t seed = 0; seed < 20000; ++seed) {
        SCOPED_TRACE(seed);
        const auto length = seed % 25;
        expectWhitespaceAgrees(test::randomSoup(seed, kPieces, length),
            test::randomSoup(seed + 100000, kPieces, length + 5));
    }
    constexpr std::array<std::string_view, 4> kFew{"<", ">", " ", "x"};
    for (const std::string pristine : {"> x \n<x> \n<x>  ", ">\n< >x<> \n <x\n\n< >", "<>\t<>"})
        test::forEachSequence(
            kFew, 7, [&](const std::string& text) { expectWhitespaceAgrees(text, pristine); });
}

TEST(WmlLayout, GivesAHandMadeDeckItsLinesBack)
{
    const std::string pristine = R"(<?xml version="1.0"?>

<wml>
  <card id="a">

    <p>one <b>two</b>
    <br/></p>
  </card>
</wml>)";
    std::string deck
        = R"(<?xml version="1.0"?><wml><card id="a"><p>one <b>two</b><br/></p></card></wml>)";
    BreakWmlLines(deck);
    RestoreWhitespace(deck, pristine);
    EXPECT_EQ(deck, pristine);
    const std::string saved = deck;
    RestoreWhitespace(deck, saved);
    EXPECT_EQ(deck, saved) << "a deck must not grow from save to save";
}

} // namespace
} // namespace quillmere
