#pragma once

#include "document/standard/deck_manner.h"
#include "document/standard/opened_card.h"

namespace quillmere {

/// What the cards of a deck are changed against. All must outlive it.
struct DeckOfCards {
    const DeckTokens& tokens;
    const DeckBytes& bytes;
    const DeckManner& manner;
    const PictureRoads& roads;
};

} // namespace quillmere
