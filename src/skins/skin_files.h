#pragma once

#include "document/platform/settings_store.h"
#include "skins/skin_records.h"

#include <cstddef>
#include <optional>
#include <vector>

// The files of skins, in the directory that the setting `Skins` names. Without that setting nothing
// is read and nothing written.

namespace quillmere {

/// The skins in memory, each list with a blank spare record at its end.
struct SkinTables {
    std::vector<SkinRecord> EditorSkins = std::vector<SkinRecord>(1);
    std::vector<PreviewSkinRecord> PreviewSkins = std::vector<PreviewSkinRecord>(1);
};

/// Whether the screen takes the variants of files that are made for big fonts.
[[nodiscard]] constexpr bool IsBigFonts(int twipsPerPixel)
{
    return twipsPerPixel < 15;
}

/// Replaces `EditorSkins` by the records of Adjust.ini, which is made where it is not there.
/// Throws FileFailure; the table is then as it was. The same holds for ReadPreviewSkins.
void ReadEditorSkins(SkinTables& tables, const SettingsStore& settings);
/// Replaces `PreviewSkins` by the records of AdjuBig.ini or AdjuPrev.ini.
void ReadPreviewSkins(SkinTables& tables, const SettingsStore& settings, bool bigFonts);

/// Writes all records but the spare one and those without a `Model`, which is trimmed in the table
/// as well; a table of nothing but the spare record leaves no file. Throws FileFailure; the file is
/// then as it was. The same holds for WritePreviewSkins.
void WriteEditorSkins(SkinTables& tables, const SettingsStore& settings);
void WritePreviewSkins(SkinTables& tables, const SettingsStore& settings, bool bigFonts);

/// The index of the active record: with `inEditor` in EditorSkins, and where that has none, or
/// without it, in PreviewSkins.
[[nodiscard]] std::optional<std::size_t> FindSelectedSkin(SkinTables& tables, bool inEditor);

/// The record that the main window takes, by that index; null where the list has no entry there.
[[nodiscard]] const SkinRecord* activeEditorSkin(SkinTables& tables);

/// The corners of AdjPntBg.ini or AdjPnt.ini and a spare one at (0, 0); nothing without the
/// setting. Throws FileFailure.
[[nodiscard]] std::vector<DevicePoint> readOutline(const SettingsStore& settings, bool bigFonts);

} // namespace quillmere
