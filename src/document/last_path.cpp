// Held by last_path_test.cpp, in both path styles.

#include "document/last_path.h"

#include "document/text_search.h"

namespace quillmere {

namespace {

// The directory of the open deck; empty where none is open.
std::string openDeckDirectory(const DocumentSession& session)
{
    const bool isOpen = !session.deck.empty() && session.deck.front().inUse;
    return isOpen ? session.deck.front().deckDir : std::string();
}

std::string personsFolder(const FolderPlaces& places)
{
    const auto root = places.drives.personsRoot();
    for (const auto& name : places.files.directoriesIn(root))
        if (standsAt(name, 0, "eigene")) return root + name;
    return withoutSeparator(root, places.style);
}

} // namespace

std::string GetLastPath(
    std::string_view valueName, const DocumentSession& session, const FolderPlaces& places)
{
    const auto kept = session.settings.ReadSetting(valueName);
    if (!kept.empty()) return withoutSeparator(kept, places.style);
    const auto deckDirectory = openDeckDirectory(session);
    if (!deckDirectory.empty()) return withoutSeparator(deckDirectory, places.style);
    return personsFolder(places);
}

void SetLastPath(std::string_view path, std::string_view valueName, SettingsStore& settings,
    PathStyle style)
{
    settings.WriteSetting(valueName, withoutSeparator(path, style));
}

bool HasIndexPage(
    const std::string& directory, const DocumentSession& session, const FileSystem& files)
{
    const auto looked = directory.empty() ? openDeckDirectory(session) : directory;
    if (looked.empty()) return false;
    const bool ends = looked.ends_with('/') || looked.ends_with('\\');
    return files.fileExists(looked + (ends ? "" : std::string(1, separator(kNativePathStyle)))
        + std::string(kIndexPage));
}

} // namespace quillmere
