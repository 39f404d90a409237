#pragma once

#include "document/changes/deck_items.h"
#include "document/text/text_place.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// One of two decks that are compared: its items, named by their index, as a report tells them.
/// The text must outlive it.
struct DeckSide {
    explicit DeckSide(std::string_view text)
        : deck(text)
        , places(text)
    {
    }

    DeckItems deck;
    TextPlaces places;

    [[nodiscard]] const DeckItem& item(std::size_t at) const { return deck.items[at]; }
    [[nodiscard]] TextPlace place(std::size_t at) const { return places.at(item(at).offset); }
    /// Name of the element itself, or of the one that the item stands in.
    [[nodiscard]] std::string element(std::size_t at) const;
    /// The tag as it is written; the text of anything else.
    [[nodiscard]] std::string text(std::size_t at) const;
    /// Words with blanks where white space stands between them.
    [[nodiscard]] std::string words(const std::vector<std::size_t>& items) const;
    /// The word ahead of the word `at` if only formats and links begin or end between them, so that
    /// white space there shows; kNoItem if anything else is there.
    [[nodiscard]] std::size_t wordAheadInLine(std::size_t at) const;
    /// The attributes of a start in the order of their lower-case names.
    [[nodiscard]] std::vector<MarkupAttribute> attributes(std::size_t start) const;
};

/// A decoded text with its kept references as they are written.
[[nodiscard]] std::string withReferences(std::string text);

} // namespace quillmere
