#pragma once

#include "document/wml/wml_elements.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

// The one tokenizer of decks. It takes any text and leaves nothing out: the sources of the tokens,
// one behind the other, are the text.

namespace quillmere {

inline constexpr std::uint32_t kNotMended = std::numeric_limits<std::uint32_t>::max();

struct WmlToken {
    enum class Kind : std::uint8_t {
        StartTag,
        EmptyTag, ///< <br/>
        EndTag,
        Word, ///< characters without white space; references are part of it
        Space, ///< a run of white space
        Comment,
        Section, ///< CDATA
        Instruction, ///< <?...?>, the XML declaration among them
        Declaration, ///< <!DOCTYPE ...>
    };
    Kind kind = Kind::Word;
    WmlElement element = WmlElement::Other; ///< of tags
    bool isFaulty : 1 = false; ///< not well-formed in itself
    bool needsLook : 1 = false; ///< the deck tells whether it is right: a reference, upper case
    bool hasId : 1 = false; ///< a tag with the attribute `id`
    bool isNew : 1 = false; ///< not of the file: for those who lay it out
    std::uint32_t mended = kNotMended; ///< in a tree: the text of WmlTree::texts to write instead
    std::string_view source; ///< as written; from '<' to behind '>' for tags
    std::string_view name; ///< of tags and instructions, as written
};

/// Takes a text apart. A tag without its '>' ends ahead of the next '<', a value without its
/// closing quote at the next '>'; a '<' that begins nothing is part of a word. `text` must outlive
/// the tokens. The time grows with the length only.
[[nodiscard]] std::vector<WmlToken> readWmlTokens(std::string_view text);

struct WmlAttribute {
    std::string_view name; ///< as written
    std::string_view value; ///< as written, without its quotes
    char quote = '\0'; ///< 0: none
    bool hasValue = true; ///< false for `selected` alone
    std::string_view source; ///< from the name to behind the closing quote
};

/// The attributes of a start or empty tag as written, in their order, doubled ones as well.
[[nodiscard]] std::vector<WmlAttribute> attributesOf(std::string_view tag);
/// The value of the first attribute of that name (lower case; the case in the tag does not matter).
[[nodiscard]] std::optional<std::string_view> attributeValue(
    std::string_view tag, std::string_view name);

} // namespace quillmere
