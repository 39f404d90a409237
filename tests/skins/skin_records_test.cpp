#include "skins/skin_records.h"

#include "support/random_bytes.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

template <typename Record> class Records : public testing::Test {
};
using AllRecords
    = testing::Types<SkinItem, SkinButton, SkinHead, SkinRecord, PreviewSkinRecord, DevicePoint>;
TYPED_TEST_SUITE(Records, AllRecords);

// A gap in the layout would come back as 0, and an overlap as the bytes of another member.
TYPED_TEST(Records, KeepEveryByteOfAnyFile)
{
    const auto bytes = test::randomBytes(3 * TypeParam::kSize, 1);
    const auto records = readRecords<TypeParam>(bytes + "rest");
    ASSERT_EQ(records.size(), 4U);
    std::string written;
    for (std::size_t i = 0; i < 3; ++i)
        appendRecord(written, records[i]);
    EXPECT_EQ(written, bytes);
}

TEST(SkinRecord, HasItsMembersAtTheirOffsets)
{
    std::string bytes(SkinRecord::kSize, '\0');
    const auto put = [&](std::size_t offset, std::string_view text) {
        bytes.replace(offset, text.size(), text);
    };
    put(150, "C35 ");
    put(450, "\xFF\xFF");
    put(452 + 5 * 318 + 8, {"\x07\x7F\x24\x00", 4});
    put(452 + 15 * 318 + 16, {"back.bmp\0junk", 13});
    put(5540 + 22 * 636 + 318 + 316, {"\x09\x00", 2});
    put(5540 + 22 * 636, {"\x00\x80", 2});

    const SkinRecord skin = readRecords<SkinRecord>(bytes).front();
    EXPECT_EQ(skin.Model.text(), "C35");
    EXPECT_EQ(skin.Selected, SkinHead::kSelected);
    EXPECT_EQ(skin.items[5].BackColor, 2391815);
    EXPECT_EQ(skin.items[15].Picture.text(), "back.bmp");
    EXPECT_EQ(skin.buttons[22].picture.FontSize, 9);
    EXPECT_EQ(skin.buttons[22].clickArea.Left, -32768);
}

TEST(PreviewSkinRecord, HasItsLastMembersBehindTheButtons)
{
    std::string bytes(PreviewSkinRecord::kSize, ' ');
    bytes.replace(3632 + 2 * 636 + 318, 2, {"\x01\x02", 2});
    bytes.replace(5540 + 166, 7, "Verdana");
    bytes.replace(5858, 2, {"\x03\x00", 2});
    const auto skin = readRecords<PreviewSkinRecord>(bytes).front();
    EXPECT_EQ(skin.buttons[2].picture.Left, 0x201);
    EXPECT_EQ(skin.lastItem.FontName.text(), "Verdana");
    EXPECT_EQ(skin.LastValue, 3);
}

TEST(TextField, IsCutAndFilledAndTrimmed)
{
    TextField<5> field;
    EXPECT_EQ(field.text(), "");
    field.set(" abcdef");
    EXPECT_EQ(std::string(field.characters.begin(), field.characters.end()), " abcd");
    field.trim();
    EXPECT_EQ(std::string(field.characters.begin(), field.characters.end()), "abcd ");
    field.set({"a \0b", 4});
    EXPECT_EQ(field.text(), "a");
}

} // namespace
} // namespace quillmere
