#pragma once

#include "document/standard/design_tags.h"
#include "document/wml/deck_bytes.h"
#include "document/wml/deck_entities.h"
#include "document/wml/wml_token.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// A card of a deck as a design text, every piece of which knows its tokens.

namespace quillmere {

/// The tokens of a deck with the partner of each tag: of a start tag the index of its end tag and
/// the other way round, else its own index. Each reference to an entity of the deck's own is a
/// token.
struct DeckTokens {
    std::vector<WmlToken> tokens;
    std::vector<std::uint32_t> partners;
    wml::DeckEntities entities;
};
[[nodiscard]] DeckTokens withPartners(std::vector<WmlToken> tokens);

/// The tokens of a piece, by their indices. Layout white space is in no design text: it belongs to
/// the block's tag behind or ahead of it.
struct PieceTokens {
    std::uint32_t first = 0; ///< layout ahead of the piece
    std::uint32_t main = 0; ///< the piece itself; the same as `behindMain` where it has no token:
                            ///< the end of an element that was written as <p/>
    std::uint32_t behindMain = 0;
    std::uint32_t behind = 0; ///< behind the layout that follows
};

struct OpenedPiece {
    std::size_t begin = 0; ///< in the design text
    std::size_t end = 0;
    PieceTokens tokens;
};

/// Every token from the card's tag through its end is in just one piece. The card's end is a piece
/// without text.
struct OpenedCard {
    std::string text; ///< the card's marker and its content, without line ends and radio buttons
    std::size_t contentBegin = 0; ///< behind the marker
    std::vector<OpenedPiece> pieces;
};

/// Opens the card whose tag is token `card`.
[[nodiscard]] OpenedCard openCard(
    const DeckTokens& deck, std::uint32_t card, const DeckBytes& bytes, const PictureRoads& roads);

} // namespace quillmere
