#pragma once

#include "document/changes/markup_document.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// A place in DeckItems that there is not.
inline constexpr std::size_t kNoItem = static_cast<std::size_t>(-1);

/// One thing of a deck that can be lost: a tag, a word, a comment or the like. An empty tag is a
/// start and an end.
struct DeckItem {
    enum class Kind { Start, End, Word, Comment, Doctype, Instruction };
    Kind kind = Kind::Word;
    std::size_t offset = 0;
    std::size_t token = 0; ///< in the document
    std::string name; ///< lower-case name of the element; the word, decoded; the comment's text
    std::size_t partner = kNoItem; ///< the end of a start, the start of an end
    std::size_t parent = kNoItem; ///< the start of the element that it stands in
    bool joined = false; ///< a word with no white space between it and the word ahead of it
};

/// A deck as the sequence of its items. White space is none of them, nor is the XML declaration.
struct DeckItems {
    explicit DeckItems(std::string_view text);

    /// Name and attributes of a start in a form that does not depend on their order, quotes,
    /// references and case; the name of any other item.
    [[nodiscard]] std::string key(const DeckItem& item) const;
    [[nodiscard]] std::string_view source(const DeckItem& item) const;
    /// Name of the element that the item stands in; "" outside of all.
    [[nodiscard]] std::string parentName(const DeckItem& item) const;

    std::string_view text;
    MarkupDocument document;
    std::vector<DeckItem> items;
};

/// The value of an attribute with its references undone and its white space as single blanks.
[[nodiscard]] std::string plainValue(const MarkupAttribute& attribute);

} // namespace quillmere
