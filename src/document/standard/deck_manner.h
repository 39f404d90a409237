#pragma once

#include "document/wml/deck_entities.h"
#include "document/wml/wml_token.h"

#include <span>

namespace quillmere {

/// How a deck is written by its author, for what is written anew.
struct DeckManner {
    char quote = '"'; ///< of most attributes
    bool hasBlankAheadOfSlash = false; ///< <br />
    bool knowsHardBlank = false; ///< &nbsp; has a meaning in this deck
};

/// The manner of the first tags of a deck that tell it.
[[nodiscard]] DeckManner mannerOf(
    std::span<const WmlToken> tokens, const wml::DeckEntities& entities);

} // namespace quillmere
