#pragma once

#include "document/deck.h"
#include "document/platform/deck_file_watch.h"
#include "document/platform/work_files.h"
#include "document/standard_recovery.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a run notes of its deck beside the work files, so that a later one can make the deck of
// them.

namespace quillmere {

/// A file by its directory, which ends in its separator, and its name.
struct NotedFile {
    std::string directory;
    std::string name;

    [[nodiscard]] std::string path() const { return directory + name; }
    bool operator==(const NotedFile&) const = default;
};

struct NotedArea {
    NotedFile design;
    /// contentHash() of the file; 0 in a note of a changed deck, where nobody asks for it.
    std::uint64_t content = 0;
    std::vector<ImageEntry> images;
    std::uint32_t card = kNoCard; ///< that it was opened from, in a deck without loss
};

struct RecoveryNote {
    NotedFile deck; ///< the person's own file
    NotedFile wml; ///< the deck as generated last
    NotedFile pristine; ///< the deck as opened; no name: one that was begun anew
    std::int64_t time = 0; ///< seconds since 1970
    bool isChanged = false; ///< the deck differs from its file
    bool losesNothing = false; ///< the areas are those of a deck without loss
    std::optional<SeenDeckFile> seen; ///< the person's file as the run read or wrote it
    NotedFile source; ///< the text of the source view, where that is not in the areas yet
    std::vector<NotedArea> areas; ///< in their order
};

/// What there is to note of an open deck, with its areas. Throws FileFailure for a work file that
/// cannot be read.
[[nodiscard]] RecoveryNote noteOf(const Deck& deck, const WorkFiles& files, bool isChanged);

/// A note as lines of fields and back; nullopt for a text that is not whole.
[[nodiscard]] std::string textOfNote(const RecoveryNote& note);
[[nodiscard]] std::optional<RecoveryNote> noteFromText(std::string_view text);

} // namespace quillmere
