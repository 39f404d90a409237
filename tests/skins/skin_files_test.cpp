#include "skins/skin_files.h"

#include "app/settings.h"
#include "document/text/failure.h"
#include "skins/palette.h"
#include "skins/user_devices.h"
#include "support/scratch_folder.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

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
    put(5858, {"\x03\x00", 2});
    EXPECT_EQ(readRecords<PreviewSkinRecord>(bytes).front().LastValue, 3);
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

/// A record for each letter: S selected, s so without a model, - not selected; and a spare one,
/// which is never found.
template <typename Record> std::vector<Record> recordsOf(const std::string& letters)
{
    std::vector<Record> records;
    for (const char letter : letters + "S") {
        auto& record = records.emplace_back();
        record.Model.set(letter == 's' ? "" : "Modell");
        record.Selected = letter == 'S' || letter == 's' ? SkinHead::kSelected : std::int16_t{0};
    }
    return records;
}

TEST_F(SkinFiles, TheFirstSelectedRecordWithAModelIsFound)
{
    const std::tuple<const char*, const char*, bool, std::optional<std::size_t>> rows[]
        = {{"-SS", "S", true, 1}, {"s-S", "", true, 2}, {"-s-", "--S", true, 2},
            {"S", "-S", false, 1}, {"-", "s", true, std::nullopt}, {"", "", true, std::nullopt}};
    for (const auto& [editor, preview, inEditor, found] : rows) {
        tables.EditorSkins = recordsOf<SkinRecord>(editor);
        tables.PreviewSkins = recordsOf<PreviewSkinRecord>(preview);
        EXPECT_EQ(FindSelectedSkin(tables, inEditor), found) << editor << preview;
    }
}

constexpr const char* kFile = "<Max Height=1 Width=1>\r\n" // ahead of the first device: of none
                              "<Geraet Name=C35>\r\n"
                              "<Representation Producer=Siemens Group=\"35\">\r\n"
                              "  <Min Height=20 Width=40>\r\n"
                              "<max width=200 height=120>\n"
                              "<Default Height=-5 Width=+101> <Max Height=7 Width=8>\r"
                              "\r\n"
                              "<Geraet  Name=7110 alt>\r\n"
                              "<Representation Producer=Nokia\r\n";

TEST(UserDevices, AreReadLineByLine)
{
    const auto devices = readUserDevices(kFile);
    ASSERT_EQ(devices.size(), 3U);
    const UserDevice& first = devices[0];
    EXPECT_EQ(first.Name, "C35");
    EXPECT_EQ(first.Producer, "Siemens");
    EXPECT_EQ(first.Group, "\"35\""); // quotes are part of a value
    EXPECT_EQ(first.MinHeight, 20);
    EXPECT_EQ(first.MinWidth, 40);
    EXPECT_EQ(first.MaxHeight, -5) << "the first height of the line, whichever tag it stands in";
    EXPECT_EQ(first.DefaultWidth, 101);
    EXPECT_EQ(devices[1].Name, "Name=7110") << "the value begins behind the second blank";
    EXPECT_EQ(devices[1].Producer, "Nokia") << "a tag that is not closed ends with its line";
    EXPECT_EQ(devices[2].Name, "");
}

} // namespace
} // namespace quillmere
