#pragma once

#include "document/standard/design_pieces.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quillmere {

/// A card begins with its events and its timer. The order in which its pieces are to be written so
/// that this holds as far as new pieces broke it: new text ahead of them goes behind, new events
/// behind text go ahead. `places` tells the new pieces (kNoPiece). The card's marker stays first
/// and its end last.
[[nodiscard]] std::vector<std::uint32_t> orderedPieces(
    std::span<const DesignPiece> pieces, std::span<const std::uint32_t> places);

} // namespace quillmere
