#pragma once

#include "document/standard/design_pieces.h"
#include "document/standard/opened_card.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillmere {

/// A card's pieces as they were and as they are now. Both begin with the card's marker and end with
/// the card's end, which has no text.
struct CardPieces {
    std::vector<DesignPiece> then;
    std::vector<PieceTokens> tokens; ///< of `then`
    std::vector<DesignPiece> now;
    std::vector<std::uint32_t> places; ///< of `now`: the index of the same piece in `then`
    std::vector<std::uint32_t> changedFrom; ///< of `now`: the tag or atom that it was before
    /// The white space of `then` that one of `now` stands for, by its index: the blanks round a
    /// word that went have become one piece.
    std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> blanksFrom;
};

/// Reads and compares both. `opened` is null for a new area, whose `then` is empty. New pieces that
/// the document type has elsewhere (an action ahead of a timer) are moved to where they may stand.
[[nodiscard]] CardPieces compareCard(const OpenedCard* opened, std::string_view design);

/// Whether nothing changed.
[[nodiscard]] bool isUnchanged(const CardPieces& pieces);

} // namespace quillmere
