// Both kinds of skins are read, written and searched by the same templates. Held by
// skin_files_test.cpp.

#include "skins/skin_files.h"

#include "document/platform/files.h"
#include "document/platform/record_files.h"

#include <string>
#include <string_view>

namespace quillmere {

namespace {

constexpr std::string_view kEditorFile = "Adjust.ini";

std::string_view previewFile(bool bigFonts)
{
    return bigFonts ? "AdjuBig.ini" : "AdjuPrev.ini";
}

std::string_view outlineFile(bool bigFonts)
{
    return bigFonts ? "AdjPntBg.ini" : "AdjPnt.ini";
}

/// The path of a skin file; nullopt without a directory of skins.
std::optional<std::string> skinPath(const SettingsStore& settings, std::string_view file)
{
    const std::string directory = settings.ReadSetting("Skins");
    if (directory.empty()) return std::nullopt;
    return directory + std::string(file);
}

template <typename Record> void readSkins(std::vector<Record>& table, const std::string& path)
{
    table = readRecords<Record>(readRecordFile(path));
}

template <typename Record> void writeSkins(std::vector<Record>& table, const std::string& path)
{
    if (table.size() < 2) {
        removeRecordFile(path);
        return;
    }
    std::string bytes;
    for (std::size_t i = 0; i + 1 < table.size(); ++i) {
        table[i].Model.trim();
        if (!table[i].Model.text().empty()) appendRecord(bytes, table[i]);
    }
    replaceFile(path, bytes);
}

template <typename Record> std::optional<std::size_t> findSelected(std::vector<Record>& table)
{
    for (std::size_t i = 0; i + 1 < table.size(); ++i) {
        table[i].Model.trim();
        if (!table[i].Model.text().empty() && table[i].Selected == SkinHead::kSelected) return i;
    }
    return std::nullopt;
}

} // namespace

void ReadEditorSkins(SkinTables& tables, const SettingsStore& settings)
{
    if (const auto path = skinPath(settings, kEditorFile)) readSkins(tables.EditorSkins, *path);
}

void ReadPreviewSkins(SkinTables& tables, const SettingsStore& settings, bool bigFonts)
{
    if (const auto path = skinPath(settings, previewFile(bigFonts)))
        readSkins(tables.PreviewSkins, *path);
}

void WriteEditorSkins(SkinTables& tables, const SettingsStore& settings)
{
    if (const auto path = skinPath(settings, kEditorFile)) writeSkins(tables.EditorSkins, *path);
}

void WritePreviewSkins(SkinTables& tables, const SettingsStore& settings, bool bigFonts)
{
    if (const auto path = skinPath(settings, previewFile(bigFonts)))
        writeSkins(tables.PreviewSkins, *path);
}

std::optional<std::size_t> FindSelectedSkin(SkinTables& tables, bool inEditor)
{
    if (inEditor) {
        if (const auto index = findSelected(tables.EditorSkins)) return index;
    }
    // An editor without an active skin takes the index of the active telephone, and is wanted so.
    return findSelected(tables.PreviewSkins);
}

// The index may be that of a telephone, and so that of the spare record or beyond the list.
const SkinRecord* activeEditorSkin(SkinTables& tables)
{
    const auto index = FindSelectedSkin(tables, true);
    if (!index || *index + 1 >= tables.EditorSkins.size()) return nullptr;
    const auto& skin = tables.EditorSkins[*index];
    return skin.Model.text().empty() ? nullptr : &skin;
}

std::vector<DevicePoint> readOutline(const SettingsStore& settings, bool bigFonts)
{
    const auto path = skinPath(settings, outlineFile(bigFonts));
    if (!path) return {};
    return readRecords<DevicePoint>(readRecordFile(*path));
}

} // namespace quillmere
