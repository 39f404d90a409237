#pragma once

#include "document/standard/design_pieces.h"
#include "document/wml/deck_bytes.h"
#include "document/wml/wml_token.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Tags as a design text has them, and their attributes on the way back.

namespace quillmere {

/// A picture as the deck names it, values without references.
struct DeckPicture {
    std::string source;
    std::string alternativeText;
    std::optional<std::string> alignment;
    std::optional<std::int32_t> heightPx;
    std::optional<std::int32_t> widthPx;
};

/// The way to the pictures' display copies and back.
struct PictureRoads {
    /// The path of the display copy; "" for a picture that has none.
    std::function<std::string(const DeckPicture&)> show;
    /// The name of the picture that a display copy shows; nullopt for an unknown one.
    std::function<std::optional<std::string>(std::string_view displayPath)> name;
};

enum class DesignForm : std::uint8_t { Tag, SingleTag, Marker, SingleMarker };

/// A start or empty tag of the deck in a form: all its attributes in double quotes, those that
/// dialogs look for first; a card has an id, be it "", and a table a border.
[[nodiscard]] std::string designTag(const WmlToken& tag, DesignForm form, const DeckBytes& deck);

/// A picture with its display copy in place of its name and its size as a style. One that has no
/// display copy is a tag as any other.
[[nodiscard]] std::string designImage(
    const WmlToken& tag, const DeckBytes& deck, const PictureRoads& roads);

/// An atom: `source` as written in the deck.
[[nodiscard]] std::string designAtom(
    std::string_view name, std::string_view source, const DeckBytes& deck);

/// The attributes that a tag or marker of a design text stands for: names in lower case where WML
/// has them, an image's name and size from its display copy and style.
[[nodiscard]] std::vector<DeckAttribute> deckAttributes(
    const DesignPiece& piece, const PictureRoads& roads);

/// Whether an attribute is the surface's own and goes to a deck only where it came from it.
[[nodiscard]] bool isForSurfaceOnly(WmlElement element, const DeckAttribute& attribute);

} // namespace quillmere
