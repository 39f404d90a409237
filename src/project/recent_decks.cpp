// The list is read and written whole. Held by deck_files_test.cpp.

#include "project/recent_decks.h"

#include <algorithm>

namespace quillmere {
namespace {

std::string settingName(int index)
{
    return "RecentDeck" + std::to_string(index + 1);
}

} // namespace

std::vector<std::string> RecentDecks::paths() const
{
    std::vector<std::string> paths;
    for (int i = 0; i < kMaxRecentDecks; ++i) {
        auto path = settings_.ReadSetting(settingName(i));
        if (!path.empty()) paths.push_back(std::move(path));
    }
    return paths;
}

void RecentDecks::add(const std::string& path)
{
    auto paths = this->paths();
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
    write(paths);
}

void RecentDecks::remove(const std::string& path)
{
    auto paths = this->paths();
    if (std::erase(paths, path) > 0) write(paths);
}

void RecentDecks::write(const std::vector<std::string>& paths)
{
    for (int i = 0; i < kMaxRecentDecks; ++i) {
        const auto index = static_cast<std::size_t>(i);
        settings_.WriteSetting(settingName(i), index < paths.size() ? paths[index] : std::string());
    }
}

} // namespace quillmere
