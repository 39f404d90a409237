#include "document/format_nesting.h"

#include "literal/corrections.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>

namespace quillmere {
namespace {

// Pieces such as "<" and "/b>" become tags when a tag between them goes.
constexpr std::array<std::string_view, 11> kPieces{
    "<b>", "</b>", "<i>", "</i>", "x", "<", "</", "b>", "/b>", "i>", "<I>"};

void expectPairRepairAgrees(const std::string& text)
{
    std::string fast = text;
    std::string slow = text;
    RepairOnePair(fast, "<b>", "</b>");
    literal::RepairOnePair(slow, "<b>", "</b>");
    ASSERT_EQ(fast, slow) << text;
}

void expectOverlapRepairAgrees(const std::string& text)
{
    std::string fast = text;
    std::string slow = text;
    RepairOverlap(fast, "<b>", "</b>", "<i>", "</i>");
    literal::RepairOverlap(slow, "<b>", "</b>", "<i>", "</i>");
    ASSERT_EQ(fast, slow) << text;
}

TEST(RepairOnePair, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 6> kFew{"<b>", "</b>", "<", "/b>", "b>", "</"};
    test::forEachSequence(kFew, 6, expectPairRepairAgrees);
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        expectPairRepairAgrees(test::randomSoup(seed, kPieces, 40));
    }
}

TEST(RepairNesting, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 14> kFormats{"<strong>", "</strong>", "<i>", "</I>",
        "<u>", "</u>", "<big>", "</big>", "<small>", "</small>", "x", "<", "/i>", "<b>"};
    for (std::uint32_t seed = 0; seed < 5000; ++seed) {
        SCOPED_TRACE(seed);
        const std::string text = test::randomSoup(seed, kFormats, 5 + seed % 40);
        std::string fast = text;
        std::string slow = text;
        RepairNesting(fast);
        literal::RepairNesting(slow);
        ASSERT_EQ(fast, slow) << text;
    }
}

TEST(RepairOverlap, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 4> kTags{"<b>", "</b>", "<i>", "</I>"};
    test::forEachSequence(kTags, 8, expectOverlapRepairAgrees);
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        expectOverlapRepairAgrees(test::randomSoup(seed, kTags, 60));
        expectOverlapRepairAgrees(test::randomSoup(seed, kPieces, 30));
    }
}

TEST(RepairFormatNesting, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 16> kFormats{"<b>", "</b>", "<i>", "</i>", "<big>",
        "</big>", "<small>", "</small>", "<u>", "</u>", "<b>", "</b>", "x", "<", "/i>", "<p>"};
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        const std::string text
            = test::randomSoup(seed, std::span(kFormats).first(10 + seed % 7), 40);
        std::string fast = text;
        std::string slow = text;
        RepairFormatNesting(fast);
        literal::RepairFormatNesting(slow);
        ASSERT_EQ(fast, slow) << text;
    }
}

} // namespace
} // namespace quillmere
