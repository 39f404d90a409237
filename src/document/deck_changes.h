#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// What became of a deck between the text that was read and the text that was written.
struct DeckChange {
    enum class Kind { Lost, Added };
    enum class Subject { Element, Attribute, Words };
    Kind kind = Kind::Lost;
    Subject subject = Subject::Element;
    std::string name; ///< of the element, or "element attribute", or the words
    std::size_t line = 0; ///< 1-based, in the text that has it
    std::size_t column = 0; ///< 1-based, in characters
};

struct DeckChangesReport {
    std::vector<DeckChange> changes;
    bool wellFormed = false; ///< the written text is a well-formed XML 1.0 document
};

/// Compares two decks, both Windows-1252 text, by elements and attributes in their places and by
/// the words of their text.
[[nodiscard]] DeckChangesReport DeckChanges(std::string_view read, std::string_view written);

} // namespace quillmere
