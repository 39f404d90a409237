#pragma once

#include "document/standard/deck_of_cards.h"
#include "document/standard/token_writer.h"

#include <string_view>

// A card as it is now, out of the card as it was opened.

namespace quillmere {

/// Writes the card whose design text is now `design`, and tells whether it is other than it was.
/// `opened` is null for a new area. What was not touched is written with the tokens that it had;
/// changed tags keep what was not changed in them; the rest is new. Ends may be missing and
/// elements misplaced: the tokens are to be read as any deck is.
bool writeCard(const DeckOfCards& deck, const OpenedCard* opened, std::string_view design,
    TokenWriter& result);

} // namespace quillmere
