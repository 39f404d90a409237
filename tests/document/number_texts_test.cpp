#include "document/number_texts.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(NumberTexts, BitsAreCountedFromOne)
{
    for (int bit = 1; bit <= 32; ++bit) {
        EXPECT_TRUE(BitIsSet(1U << (bit - 1), bit)) << bit;
        EXPECT_FALSE(BitIsSet(~(1U << (bit - 1)), bit)) << bit;
    }
    EXPECT_FALSE(BitIsSet(~0U, 0) || BitIsSet(~0U, 33));
}

TEST(NumberTexts, DecimalAndCleanedNumbers)
{
    const struct {
        const char* text;
        bool isDecimal;
        const char* cleaned;
    } rows[] = {{"12", true, "12"}, {"1,5", true, "15"}, {"7,", true, "7"}, {",5", false, "5"},
        {"1,2,3", false, ""}, {"12345678901", true, "12345678"}, {"-3", false, "3"},
        {" 42 ", false, "42"}, {"1.000", false, "1000"}, {"1a", false, ""}, {"", false, ""},
        {",", false, ""}, {"-", false, ""}, {"1-2", false, ""}, {"      1234", false, "12"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(IsDecimal(row.text), row.isDecimal);
        EXPECT_EQ(CleanNumberText(row.text), row.cleaned);
    }
}

} // namespace
} // namespace quillmere
