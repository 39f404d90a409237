#pragma once

#include "document/standard/card_changes.h"
#include "document/standard/standard_deck.h"

#include <map>
#include <optional>
#include <span>
#include <string>

// What stands in a deck outside of its cards, such as its template, may lead to cards, and leads to
// them still where they have got other ids. Within the cards who renames one sees to it.

namespace quillmere {

/// New ids of cards by their old ones, as design texts have them.
using CardRenames = std::map<std::string, std::string>;

/// The cards of a deck that have got other ids, but for those whose old id another area has now.
[[nodiscard]] CardRenames renamedCards(std::span<const AreaText> areas);

/// A start or empty tag with its targets renamed; nullopt where it leads to no such card.
[[nodiscard]] std::optional<std::string> renamedTag(
    const WmlToken& tag, const CardRenames& renames, const DeckOfCards& deck);

} // namespace quillmere
