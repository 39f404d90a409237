#include "document/do_block.h"

#include "literal/corrections.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>

namespace quillmere {
namespace {

TEST(TakeDoBlock, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 6> kPieces{"<do", "</DO", ">", "</Card", "x", "<"};
    test::forEachSequence(kPieces, 7, [](const std::string& text) {
        std::string fast = text;
        std::string slow = text;
        ASSERT_EQ(TakeDoBlock(fast), literal::TakeDoBlock(slow)) << text;
        ASSERT_EQ(fast, slow) << text;
    });
}

} // namespace
} // namespace quillmere
