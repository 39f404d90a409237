#pragma once

#include "document/session.h"
#include "document/standard/standard_deck.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace quillmere {

/// The areas' cards, kNoCard for a new one, as `reopenCards` wants them back.
[[nodiscard]] std::uint32_t cardOf(const DeckRecord& area);

/// Ties the areas of a deck that were found again, with their pictures, to the cards that they were
/// opened from. `file` is the deck as it was opened, its pristine copy; nullopt: one that was begun
/// anew. Areas of cards that it has not are new ones.
void reopenCards(DocumentSession& session, const std::optional<std::string>& file,
    std::span<const std::uint32_t> cards);

} // namespace quillmere
