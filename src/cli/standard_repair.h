#pragma once

#include "document/changes/deck_changes.h"
#include "document/text/text_place.h"
#include "document/wml/deck_bytes.h"
#include "document/wml/wml_mends.h"

#include <optional>
#include <string>
#include <vector>

// What `repair --standard-output` does with a deck: the bytes of its file, with mends alone.

namespace quillmere::cli {

struct PlacedMend {
    WmlMend mend;
    TextPlace place; ///< in the deck that was read
};

struct StandardRepair {
    DeckBytes deck; ///< that was read
    std::string written; ///< the bytes of the file
    std::string read; ///< the text of `deck`, Windows-1252
    std::vector<PlacedMend> mends;
    std::optional<DeckFault> fault; ///< of what is written; there should be none
};

/// Mends the bytes of a deck file. Throws DeckTooLong.
[[nodiscard]] StandardRepair repairStandard(const std::string& bytes);

/// What the repair changed beside its mends, and whether another one would change more.
[[nodiscard]] DeckChangesReport changesOf(const StandardRepair& repair);

} // namespace quillmere::cli
