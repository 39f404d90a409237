#pragma once

#include "document/wml/wml_elements.h"
#include "document/wml/wml_token.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A design text in pieces: words, white space, tags and markers. The pieces of a text as it was
// opened know what they are made of; those of the text as it is now are compared with them.

namespace quillmere {

struct DesignPiece {
    enum class Kind : std::uint8_t {
        Word,
        Space,
        Start, ///< <p>, <!--option-->
        End, ///< </p>, <!--/option-->
        Single, ///< <br/>, <img ...></img>, <!--go href="#a"/-->
        Atom, ///< <!--#NAME SOURCE-->
    };
    Kind kind = Kind::Word;
    WmlElement element = WmlElement::Other; ///< of tags and markers
    std::string_view text; ///< the piece as it stands in the design text
    std::string_view name; ///< of tags, markers and atoms
    std::uint64_t key = 0; ///< the same for pieces that mean the same
};

struct DeckAttribute {
    std::string name;
    std::string value; ///< as shown
    friend bool operator==(const DeckAttribute&, const DeckAttribute&) = default;
};

/// The pieces of a design text, lines joined. What belongs to the surface alone is none: the frame
/// of HTML, HEAD and BODY, radio buttons, `</br>`, tags that WML has not, comments that are no
/// markers, a second card's marker. `design` must outlive the pieces.
[[nodiscard]] std::vector<DesignPiece> readDesignPieces(std::string_view design);

/// The attributes of a start tag or marker as written, values without quotes.
[[nodiscard]] std::vector<DeckAttribute> attributesOf(const DesignPiece& piece);
/// The source that an atom holds, in Windows-1252; of an entity its reference alone.
[[nodiscard]] std::string sourceOf(const DesignPiece& atom);

} // namespace quillmere
