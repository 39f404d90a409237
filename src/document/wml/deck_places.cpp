// Held by tests/document/wml/deck_bytes_test.cpp.

#include "document/wml/deck_places.h"

#include <algorithm>
#include <iterator>
#include <tuple>

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

DecodedPlaces::DecodedPlaces(const DeckBytes& deck)
{
    const auto text = deck.text();
    const TextPlaces places(deck.decoded(text));
    std::size_t decoded = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto character = text.substr(at, deck.characterAt(text, at).length);
        const auto length = deck.decoded(character).size();
        if (length > 1) add(places.at(decoded), length - 1);
        decoded += length;
        at += character.size();
    }
}

void DecodedPlaces::add(TextPlace decoded, std::size_t surplus)
{
    const bool isFurther = !references_.empty() && references_.back().decoded.line == decoded.line;
    references_.push_back({decoded, surplus + (isFurther ? references_.back().surplus : 0)});
}

TextPlace DecodedPlaces::inDeck(TextPlace decoded) const
{
    const auto isAhead = [](const Reference& reference, const TextPlace& place) {
        return std::tie(reference.decoded.line, reference.decoded.column)
            < std::tie(place.line, place.column);
    };
    const auto behind = std::lower_bound(references_.begin(), references_.end(), decoded, isAhead);
    if (behind == references_.begin()) return decoded;
    const Reference& last = *std::prev(behind);
    if (last.decoded.line == decoded.line) decoded.column -= last.surplus;
    return decoded;
}

} // namespace quillmere
