#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Names and places of decks. Names and directories are bytes of the file system; a directory ends
// in its separator.

namespace quillmere {

/// The file of a deck.
struct DeckPlace {
    std::string name;
    std::string directory;

    [[nodiscard]] std::string path() const { return directory + name; }
    [[nodiscard]] bool operator==(const DeckPlace&) const = default;
};

/// The place of a path that a window gives, made absolute.
[[nodiscard]] DeckPlace deckPlace(const QString& path);

/// The name as the file-name rule takes it, with ".wml" at its end; nullopt where it is refused.
[[nodiscard]] std::optional<std::string> acceptedDeckName(std::string_view name);

/// The name of a new page: all from its first point on becomes ".wml". Nothing is refused.
[[nodiscard]] std::string pageName(std::string_view name);

/// The names of the decks in a directory, sorted as a person sorts; none where it cannot be read.
[[nodiscard]] std::vector<std::string> deckFilesIn(const std::string& directory);

} // namespace quillmere
