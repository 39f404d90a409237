// Held by tests/document/wml/deck_bytes_test.cpp.

#include "document/wml/deck_places.h"

#include <algorithm>

namespace quillmere {

DeckPlaces::DeckPlaces(const DeckBytes& deck)
    : deck_(deck)
    , lines_(deck.text())
{
}

TextPlace DeckPlaces::at(std::size_t offset)
{
    auto place = lines_.at(offset);
    const auto lineBegin = offset - (place.column - 1);
    if (reached_ < lineBegin || reached_ > offset) {
        reached_ = lineBegin;
        column_ = 1;
    }
    const auto text = deck_.text();
    for (const auto end = std::min(offset, text.size()); reached_ < end; ++column_)
        reached_ += deck_.characterAt(text, reached_).length;
    place.column = column_;
    return place;
}

} // namespace quillmere
