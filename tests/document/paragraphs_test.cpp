#include "document/paragraphs.h"

#include "literal/corrections.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>

namespace quillmere {
namespace {

using PairOperation = void (*)(std::string&, std::string_view, std::string_view);

void expectAgreement(PairOperation fastOperation, PairOperation slowOperation,
    std::string_view open, std::string_view close, const std::string& text)
{
    std::string fast = text;
    std::string slow = text;
    fastOperation(fast, open, close);
    slowOperation(slow, open, close);
    ASSERT_EQ(fast, slow) << text;
}

void expectWrapAgrees(const std::string& text)
{
    expectAgreement(WrapInParagraph, literal::WrapInParagraph, "<a", "</a", text);
}

void expectSplitAgrees(const std::string& text)
{
    expectAgreement(SplitAtParagraphs, literal::SplitAtParagraphs, "<b>", "</b>", text);
}

void expectRepairAgrees(const std::string& text)
{
    std::string fast = text;
    std::string slow = text;
    RepairParagraphs(fast);
    literal::RepairParagraphs(slow);
    ASSERT_EQ(fast, slow) << text;
}

TEST(RepairParagraphs, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 7> kFew{"<card>", "</card", "<p>", "</p", ">", "<", "+"};
    test::forEachSequence(kFew, 6, expectRepairAgrees);
    constexpr std::array<std::string_view, 11> kPieces{
        "</P>", "<p>", "</p", "<", "</", "/p>", "p", "x", ".", "<card a>", "</card>"};
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        expectRepairAgrees(test::randomSoup(seed, kPieces, 40));
        expectRepairAgrees("<card>" + test::randomSoup(seed, std::span(kPieces).first(9), 20));
    }
}

TEST(WrapInParagraph, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 6> kFew{"<a", "</A", ">", "<p>", "</p>", "x"};
    test::forEachSequence(kFew, 7, expectWrapAgrees);
    constexpr std::array<std::string_view, 9> kPieces{
        "<a", "</a>", ">", "<p>", "</P>", "x", "<", "</p", "<a>"};
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        expectWrapAgrees(test::randomSoup(seed, kPieces, 40));
    }
}

TEST(SplitAtParagraphs, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 6> kFew{"<b>", "</b>", "<p>", "</p", " ", "<"};
    test::forEachSequence(kFew, 7, expectSplitAgrees);
    constexpr std::array<std::string_view, 12> kPieces{
        "<b>", "</b>", "<p>", "</p>", "<P a>", "x", " ", "<", "</", "b>", "/b>", "<b>"};
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        expectSplitAgrees(test::randomSoup(seed, kPieces, 40));
        expectSplitAgrees(test::randomSoup(seed, std::span(kPieces).first(7), 40));
    }
}

} // namespace
} // namespace quillmere
