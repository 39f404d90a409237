#pragma once

#include "document/deck_store.h"
#include "document/session.h"
#include "document/standard/standard_deck.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// A deck without loss that another run left behind.

namespace quillmere {

/// An area as it was left.
struct LeftArea {
    std::string design; ///< its design work file
    std::vector<ImageEntry> images; ///< without a spare one; the display copies are those of then
    std::uint32_t card = kNoCard; ///< that it was opened from
};

struct LeftDeck {
    DeckLocation location;
    std::optional<std::string> opened; ///< the deck as it was opened; nullopt: it was begun anew
    std::vector<LeftArea> areas; ///< at least one
};

/// Which card an area was opened from; kNoCard for a new one.
[[nodiscard]] std::uint32_t cardOf(const DeckRecord& area);

/// Makes the areas the session's deck, as if they had been edited in it: what they are compared
/// with is the deck as it was opened then. Areas of cards that this has not are new ones. The
/// pictures get display copies of their own. Throws FileFailure and RuntimeFailure; the session's
/// deck is then as it was.
void reopenDeck(DocumentSession& session, LeftDeck left);

} // namespace quillmere
