#include "skins/skin_files.h"

#include "document/failure.h"
#include "support/random_bytes.h"
#include "support/scratch_folder.h"
#include "support/settings_in_memory.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

class SkinFiles : public testing::Test {
protected:
    test::ScratchFolder folder;
    test::SettingsInMemory settings{{{"Skins", folder.path()}}};
    SkinTables tables;
};

/// Random records, each with a model of its own.
std::string skinBytes(std::size_t count)
{
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) {
        auto skin
            = readRecords<SkinRecord>(test::randomBytes(SkinRecord::kSize, unsigned(i))).front();
        skin.Model.set("Modell " + std::to_string(i));
        appendRecord(bytes, skin);
    }
    return bytes;
}

TEST_F(SkinFiles, ComeBackAsTheyWereWithoutTheRecordsThatLostTheirModel)
{
    const auto bytes = skinBytes(3);
    folder.put("Adjust.ini", bytes + "half a record");
    ReadEditorSkins(tables, settings);
    ASSERT_EQ(tables.EditorSkins.size(), 4U);
    EXPECT_EQ(tables.EditorSkins[3].Model.text(), "");

    WriteEditorSkins(tables, settings);
    EXPECT_EQ(folder.get("Adjust.ini"), bytes);

    tables.EditorSkins[1].Model.set("  ");
    WriteEditorSkins(tables, settings);
    EXPECT_EQ(folder.get("Adjust.ini"),
        bytes.substr(0, SkinRecord::kSize) + bytes.substr(2 * SkinRecord::kSize));

    tables.EditorSkins.resize(1);
    WriteEditorSkins(tables, settings);
    EXPECT_FALSE(folder.has("Adjust.ini"));
}

TEST_F(SkinFiles, ModelsAreTrimmedInTheTableAsWell)
{
    tables.EditorSkins.resize(2);
    tables.EditorSkins[0].Model.set("  C35");
    WriteEditorSkins(tables, settings);
    EXPECT_EQ(folder.get("Adjust.ini").substr(150, 6), "C35   ");
    EXPECT_EQ(tables.EditorSkins[0].Model.characters[0], 'C');
}

TEST_F(SkinFiles, BigFontsHaveFilesOfTheirOwn)
{
    PreviewSkinRecord skin;
    for (const bool big : {false, true}) {
        skin.Model.set(big ? "groß" : "klein");
        tables.PreviewSkins = {skin, {}};
        WritePreviewSkins(tables, settings, big);
        std::string point;
        appendRecord(point, DevicePoint{big ? 20 : 10, -1});
        folder.put(big ? "AdjPntBg.ini" : "AdjPnt.ini", point);
    }
    EXPECT_EQ(folder.get("AdjuPrev.ini").size(), PreviewSkinRecord::kSize);
    EXPECT_EQ(folder.get("AdjuBig.ini").substr(150, 3), "gro");
    ReadPreviewSkins(tables, settings, false);
    ASSERT_EQ(tables.PreviewSkins.size(), 2U);
    EXPECT_EQ(tables.PreviewSkins[0].Model.text(), "klein");

    ASSERT_EQ(readOutline(settings, IsBigFonts(12)).size(), 2U);
    EXPECT_EQ(readOutline(settings, IsBigFonts(12))[0].X, 20);
    EXPECT_EQ(readOutline(settings, IsBigFonts(15))[0].X, 10);
    EXPECT_EQ(readOutline(settings, IsBigFonts(15))[1].Y, 0);
}

TEST_F(SkinFiles, AMissingFileIsMadeAndReadsAsOneBlankRecord)
{
    tables.EditorSkins.resize(5);
    ReadEditorSkins(tables, settings);
    EXPECT_EQ(tables.EditorSkins.size(), 1U);
    EXPECT_TRUE(folder.has("Adjust.ini"));
    EXPECT_EQ(folder.get("Adjust.ini"), "");
}

TEST_F(SkinFiles, WithoutADirectoryNothingIsReadOrWritten)
{
    const test::SettingsInMemory none;
    tables.EditorSkins.resize(5);
    ReadEditorSkins(tables, none);
    WriteEditorSkins(tables, none);
    EXPECT_EQ(tables.EditorSkins.size(), 5U);
    EXPECT_TRUE(readOutline(none, false).empty());
}

TEST_F(SkinFiles, ADirectoryThatIsNotThereFails)
{
    settings.WriteSetting("Skins", folder.path() + "fehlt/");
    tables.EditorSkins.resize(5);
    EXPECT_THROW(ReadEditorSkins(tables, settings), FileFailure);
    EXPECT_EQ(tables.EditorSkins.size(), 5U);
}

struct Selection {
    const char* name;
    std::string editor; // one letter a record: S selected, s selected without model, - not selected
    std::string preview;
    bool inEditor;
    std::optional<std::size_t> found;
};

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
    const Selection rows[] = {
        {"the first of two", "-SS", "S", true, 1},
        {"not without a model", "s-S", "", true, 2},
        {"none in the editor: the telephone's", "-s-", "--S", true, 2},
        {"telephones only", "S", "-S", false, 1},
        {"none", "-", "s", true, std::nullopt},
        {"nothing but spare records", "", "", true, std::nullopt},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        tables.EditorSkins = recordsOf<SkinRecord>(row.editor);
        tables.PreviewSkins = recordsOf<PreviewSkinRecord>(row.preview);
        EXPECT_EQ(FindSelectedSkin(tables, row.inEditor), row.found);
    }
}

} // namespace
} // namespace quillmere
