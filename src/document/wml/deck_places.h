#pragma once

#include "document/text/text_place.h"
#include "document/wml/deck_bytes.h"

#include <cstddef>
#include <vector>

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

/// Turns places in the decoded text of a deck, where each character that Windows-1252 has not is a
/// reference of several, into those in the deck.
class DecodedPlaces {
public:
    explicit DecodedPlaces(const DeckBytes& deck);
    /// `decoded` lies within no such reference.
    [[nodiscard]] TextPlace inDeck(TextPlace decoded) const;

private:
    struct Reference {
        TextPlace decoded;
        std::size_t surplus = 0; ///< the columns up to its end that its line of the deck has not
    };
    void add(TextPlace decoded, std::size_t surplus);

    std::vector<Reference> references_; ///< in the order of the text
};

} // namespace quillmere
