#pragma once

#include "document/platform/settings_store.h"

#include <string>
#include <vector>

namespace quillmere {

inline constexpr int kMaxRecentDecks = 8;

/// The decks that were open last, newest first, by their paths in the bytes of the file system.
/// They are kept in the settings "RecentDeck1" to "RecentDeck8".
class RecentDecks {
public:
    /// `settings` must outlive the object.
    explicit RecentDecks(SettingsStore& settings)
        : settings_(settings)
    {
    }

    [[nodiscard]] std::vector<std::string> paths() const;
    /// Puts the deck in front; the oldest beyond the eighth goes.
    void add(const std::string& path);
    /// Takes out a deck that is not there any more.
    void remove(const std::string& path);

private:
    void write(const std::vector<std::string>& paths);

    SettingsStore& settings_;
};

} // namespace quillmere
