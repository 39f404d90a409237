#include "skins/skin_files.h"

#include "app/settings.h"
#include "document/failure.h"
#include "skins/palette.h"
#include "support/scratch_folder.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillmere {
namespace {

TEST(Palette, FindsTheNearestNumberNotTheNearestColour)
{
    const std::pair<std::int32_t, int> rows[] = {{2391815, 0}, {0xC0C0C0, 10}, {2391816, 0}, {0, 1},
        {-16777216, 1}, // negative counts as black
        {0x0000FF, 1}, // pure red is a small number, so green
        {0xFF0000, 9}, {(2343189 + 2391815) / 2, 0}, // in the middle the earlier one
        {0xFFFFFF, 23}, {std::numeric_limits<std::int32_t>::max(), 23}};
    for (const auto& [colour, index] : rows)
        EXPECT_EQ(GetNearestColor(colour).index, index) << colour;
    for (int i = 0; i < kSwatchCount; ++i)
        EXPECT_EQ(GetNearestColor(swatch(i).colour).index, i);
    EXPECT_EQ(swatch(16).colour, 0xE0E0E0);
    EXPECT_EQ(swatch(16).tag, "&H00E0E0E0");
}

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

TEST(SkinRecords, HaveTheirMembersAtTheirOffsets)
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

    bytes.assign(PreviewSkinRecord::kSize, ' ');
    put(3632 + 2 * 636 + 318, "\x01\x02");
    put(5540 + 166, "Verdana");
    put(5858, {"\x03\x00", 2});
    const auto preview = readRecords<PreviewSkinRecord>(bytes).front();
    EXPECT_EQ(preview.buttons[2].picture.Left, 0x201);
    EXPECT_EQ(preview.lastItem.FontName.text(), "Verdana");
    EXPECT_EQ(preview.LastValue, 3);
}

class SkinFiles : public testing::Test {
protected:
    SkinFiles() { settings.WriteSetting("Skins", folder.path()); }
    test::ScratchFolder folder;
    MemorySettings settings;
    SkinTables tables;
};

TEST_F(SkinFiles, ComeBackAsTheyWereWithoutTheRecordsThatLostTheirModel)
{
    std::string bytes;
    for (unsigned i = 0; i < 3; ++i) {
        auto skin = readRecords<SkinRecord>(test::randomBytes(SkinRecord::kSize, i)).front();
        skin.Model.set("Modell " + std::to_string(i));
        appendRecord(bytes, skin);
    }
    folder.put("Adjust.ini", bytes + "half a record");
    ReadEditorSkins(tables, settings);
    ASSERT_EQ(tables.EditorSkins.size(), 4U);
    WriteEditorSkins(tables, settings);
    EXPECT_EQ(folder.get("Adjust.ini"), bytes);

    tables.EditorSkins[0].Model.set("  Modell 0"); // is trimmed, in the table as well
    tables.EditorSkins[1].Model.set("  ");
    WriteEditorSkins(tables, settings);
    EXPECT_EQ(folder.get("Adjust.ini"),
        bytes.substr(0, SkinRecord::kSize) + bytes.substr(2 * SkinRecord::kSize));
    EXPECT_EQ(tables.EditorSkins[0].Model.characters[0], 'M');
    tables.EditorSkins.resize(1);
    WriteEditorSkins(tables, settings);
    EXPECT_FALSE(folder.has("Adjust.ini"));
    ReadEditorSkins(tables, settings); // a missing file is made
    EXPECT_EQ(tables.EditorSkins.size(), 1U);
    EXPECT_TRUE(folder.has("Adjust.ini"));
}

TEST_F(SkinFiles, BigFontsHaveFilesOfTheirOwn)
{
    PreviewSkinRecord skin;
    for (const bool big : {false, true}) {
        skin.Model.set(big ? "gross" : "klein");
        tables.PreviewSkins = {skin, {}};
        WritePreviewSkins(tables, settings, big);
        std::string point;
        appendRecord(point, DevicePoint{big ? 20 : 10, -1});
        folder.put(big ? "AdjPntBg.ini" : "AdjPnt.ini", point);
    }
    EXPECT_EQ(folder.get("AdjuPrev.ini").substr(150, 5), "klein");
    EXPECT_EQ(folder.get("AdjuBig.ini").substr(150, 5), "gross");
    ReadPreviewSkins(tables, settings, false);
    EXPECT_EQ(tables.PreviewSkins.at(0).Model.text(), "klein");
    EXPECT_EQ(readOutline(settings, IsBigFonts(12)).at(0).X, 20);
    EXPECT_EQ(readOutline(settings, IsBigFonts(15)).at(0).X, 10);
    EXPECT_EQ(readOutline(settings, IsBigFonts(15)).at(1).Y, 0);
}

TEST_F(SkinFiles, WithoutADirectoryTheTableStays)
{
    tables.EditorSkins.resize(5);
    ReadEditorSkins(tables, MemorySettings());
    EXPECT_TRUE(readOutline(MemorySettings(), false).empty());
    settings.WriteSetting("Skins", folder.path() + "fehlt/");
    EXPECT_THROW(ReadEditorSkins(tables, settings), FileFailure);
    EXPECT_EQ(tables.EditorSkins.size(), 5U);
}

template <typename Record> std::vector<Record> recordsOf(const std::string& letters)
{
    std::vector<Record> records(letters.size() + 1);
    for (std::size_t i = 0; i < letters.size(); ++i) {
        records[i].Model.set(letters[i] == 's' ? "" : "Modell");
        records[i].Selected = letters[i] == '-' ? std::int16_t{0} : SkinHead::kSelected;
    }
    return records;
}

TEST_F(SkinFiles, TheFirstSelectedRecordWithAModelIsFound)
{
    const struct {
        const char *editor, *preview; // a record each: S selected, s so without a model, - not
        bool inEditor;
        std::optional<std::size_t> found;
    } rows[] = {{"-SS", "S", true, 1}, {"s-S", "", true, 2}, {"-s-", "--S", true, 2},
        {"S", "-S", false, 1}, {"-", "s", true, std::nullopt}, {"", "", true, std::nullopt}};
    for (const auto& row : rows) {
        tables.EditorSkins = recordsOf<SkinRecord>(row.editor);
        tables.PreviewSkins = recordsOf<PreviewSkinRecord>(row.preview);
        EXPECT_EQ(FindSelectedSkin(tables, row.inEditor), row.found) << row.editor << row.preview;
    }
}

} // namespace
} // namespace quillmere
