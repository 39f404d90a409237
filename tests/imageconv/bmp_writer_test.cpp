#include "imageconv/bmp_writer.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(BmpWriter, WritesRowsFromTheBottomAndPadsThem)
{
    const auto bytes = bmpBytes({9, 2, 1, {0x00112233, 0x00FFFFFF}, {"\x01\x80\x02\x00", 4}});
    const std::string expected(
        "BM\x46\0\0\0\0\0\0\0\x3E\0\0\0" // file header: 70 bytes, pixels at 62
        "\x28\0\0\0\x09\0\0\0\x02\0\0\0\x01\0\x01\0\0\0\0\0\x08\0\0\0"
        "\xC4\x0E\0\0\xC4\x0E\0\0\x02\0\0\0\0\0\0\0"
        "\x11\x22\x33\0\xFF\xFF\xFF\0" // blue first
        "\x02\0\0\0\x01\x80\0\0",
        70);
    EXPECT_EQ(bytes, expected);
}

} // namespace
} // namespace quillmere
