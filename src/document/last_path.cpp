// Held by paths_test.cpp, in both path styles.

#include "document/last_path.h"

#include "document/text/text_search.h"

namespace quillmere {

namespace {

// The directory of the open deck; empty where none is open.
std::string openDeckDirectory(const Deck& deck)
{
    const bool isOpen = !deck.empty() && deck.front().inUse;
    return isOpen ? deck.front().deckDir : std::string();
}

std::string personsFolder(const FolderPlaces& places)
{
    const auto root = places.drives.personsRoot();
    for (const auto& name : places.files.directoriesIn(root))
        if (standsAt(name, 0, "eigene")) return root + name;
    return withoutSeparator(root, places.style);
}

} // namespace

std::string GetLastPath(std::string_view valueName, const SettingsStore& settings, const Deck& deck,
    const FolderPlaces& places)
{
    const auto kept = settings.ReadSetting(valueName);
    if (!kept.empty()) return withoutSeparator(kept, places.style);
    const auto deckDirectory = openDeckDirectory(deck);
    if (!deckDirectory.empty()) return withoutSeparator(deckDirectory, places.style);
    return personsFolder(places);
}

void SetLastPath(
    std::string_view path, std::string_view valueName, SettingsStore& settings, PathStyle style)
{
    settings.WriteSetting(valueName, withoutSeparator(path, style));
}

bool HasIndexPage(
    const std::string& directory, const Deck& deck, const FileSystem& files, PathStyle style)
{
    std::string looked = directory.empty() ? openDeckDirectory(deck) : directory;
    if (looked.empty()) return false;
    if (!looked.ends_with(separator(style))) looked += separator(style);
    return files.fileExists(looked.append(kIndexPage));
}

} // namespace quillmere
