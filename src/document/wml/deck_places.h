#pragma once

#include "document/text/text_place.h"
#include "document/wml/deck_bytes.h"

#include <cstddef>

namespace quillmere {

/// Turns offsets in the text of a deck into places, whose columns count characters of the deck's
/// encoding. Offsets that rise are told in one walk. The deck must outlive it.
class DeckPlaces {
public:
    explicit DeckPlaces(const DeckBytes& deck);
    [[nodiscard]] TextPlace at(std::size_t offset);

private:
    const DeckBytes& deck_;
    TextPlaces lines_;
    std::size_t reached_ = 0; ///< an offset
    std::size_t column_ = 1; ///< its column
};

} // namespace quillmere
