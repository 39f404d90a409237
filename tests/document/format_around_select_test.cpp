#include "document/format_around_select.h"

#include "literal/corrections.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>

namespace quillmere {
namespace {

constexpr std::array<std::string_view, 10> kPieces{
    "<b>", "</b>", "<select>", "</select>", "x", "<", "</", "b>", "/b>", "select>"};

void expectAgreement(const std::string& text)
{
    for (const bool apply : {false, true}) {
        std::string fast = text;
        std::string slow = text;
        ASSERT_EQ(FormatAroundSelect(fast, "<b>", "</b>", apply),
            literal::FormatAroundSelect(slow, "<b>", "</b>", apply))
            << text;
        ASSERT_EQ(fast, slow) << text;
    }
}

TEST(FormatAroundSelect, AgreesWithPlainSearches)
{
    test::forEachSequence(std::span(kPieces).first(4), 8, expectAgreement);
    for (std::uint32_t seed = 0; seed < 5000; ++seed) {
        SCOPED_TRACE(seed);
        expectAgreement(test::randomSoup(seed, kPieces, 40));
        expectAgreement(test::randomSoup(seed, std::span(kPieces).first(4), 40));
    }
}

} // namespace
} // namespace quillmere
