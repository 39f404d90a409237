#include "skins/palette.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillmere {
namespace {

TEST(Palette, FindsTheNearestNumberNotTheNearestColour)
{
    struct Row {
        const char* name;
        std::int32_t colour;
        int index;
    };
    const Row rows[] = {
        {"a swatch itself", 2391815, 0},
        {"a swatch told in hexadecimal", 0xC0C0C0, 10},
        {"the default telephone's green, one off", 2391816, 0},
        {"black has the smallest number above it", 0, 1},
        {"negative counts as black", -16777216, 1},
        {"pure red is a small number, so green", 0x0000FF, 1},
        {"pure blue", 0xFF0000, 9},
        {"in the middle of 2343189 and 2391815 the earlier one", (2343189 + 2391815) / 2, 0},
        {"white", 0xFFFFFF, 23},
        {"largest number", std::numeric_limits<std::int32_t>::max(), 23},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(GetNearestColor(row.colour).index, row.index);
    }
}

TEST(Palette, EverySwatchIsItsOwnNearestAndHasItsNumberAsText)
{
    for (int i = 0; i < kSwatchCount; ++i) {
        const Swatch expected = swatch(i);
        const Swatch found = GetNearestColor(expected.colour);
        EXPECT_EQ(found.index, i);
        EXPECT_EQ(found.tag, expected.tag);
    }
    EXPECT_EQ(swatch(16).colour, 0xE0E0E0);
    EXPECT_EQ(swatch(16).tag, "&H00E0E0E0");
    EXPECT_EQ(swatch(20).colour, 16777158);
}

} // namespace
} // namespace quillmere
