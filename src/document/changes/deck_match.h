#pragma once

#include "document/changes/deck_items.h"
#include "document/changes/sequence_match.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// Which item of the read deck is which of the written one.
struct DeckMatch {
    std::vector<std::size_t> written; ///< by read item; kNoItem: lost
    std::vector<std::size_t> read; ///< by written item; kNoItem: added
    std::vector<bool> moved; ///< by read item: it is there, at another place of its card
    /// Items that stand in the same order in both decks, from which places between are told.
    std::vector<MatchedPair> anchors;
};

/// Finds for each item its like: first in the same order, with the same attributes and then with
/// others; then at any place of the same card. The end of an element goes with its start.
[[nodiscard]] DeckMatch matchItems(const DeckItems& read, const DeckItems& written);

} // namespace quillmere
