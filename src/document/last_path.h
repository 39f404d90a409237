#pragma once

#include "document/deck.h"
#include "document/platform/drives.h"
#include "document/platform/file_system.h"
#include "document/platform/paths.h"
#include "document/platform/settings_store.h"

#include <string>
#include <string_view>

// The folders that dialogs come back to. They are shown without a separator at their end, except
// for a root such as "C:\" or "/".

namespace quillmere {

inline constexpr std::string_view kIndexPage = "index.wml"; ///< the start page of a project

/// What the choice of a folder looks at.
struct FolderPlaces {
    const FileSystem& files;
    const Drives& drives;
    PathStyle style = kNativePathStyle;
};

/// The folder kept in the setting `valueName`; without one the open deck's directory; without a
/// deck the person's own folder ("Eigene Dateien") or the root where it should lie.
[[nodiscard]] std::string GetLastPath(std::string_view valueName, const SettingsStore& settings,
    const Deck& deck, const FolderPlaces& places);

/// Keeps a folder in the setting `valueName`.
void SetLastPath(std::string_view path, std::string_view valueName, SettingsStore& settings,
    PathStyle style = kNativePathStyle);

/// Whether the directory holds the start page. An empty directory means the open deck's, and false
/// where none is open.
[[nodiscard]] bool HasIndexPage(const std::string& directory, const Deck& deck,
    const FileSystem& files, PathStyle style = kNativePathStyle);

} // namespace quillmere
