#pragma once

#include "editor_layout.h"
#include "skin_tokens.h"
#include "skins/skin_records.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

// The telephones of the preview. Their makers and models are invented.

namespace quillmere {

struct BuilderPlaces;

/// One part of a body: a rounded block. Coordinates are those of the telephone's picture.
struct BodyPart {
    Box box;
    int corner = 0;
};

/// One of the three keys.
struct KeyPlace {
    Box box;
    std::string_view icon;
};

/// The field of number keys.
struct PadPlace {
    Box box; ///< all twelve keys
    int columns = 3;
    int gap = 10;
};

struct Telephone {
    std::string_view maker;
    std::string_view model;
    std::string_view variant;
    std::string_view file; ///< what its files begin with
    TelephoneTokens tokens;
    Box picture; ///< in the preview's window; all that follows is within the picture
    std::span<const BodyPart> body;
    Box engraving;
    Box speaker;
    Box bezel;
    int bezelCorner = 0;
    Box screen; ///< card caption, display and task caption, one above the other
    KeyPlace keys[3]; ///< Select, Back, Commit
    PadPlace pad;
    int minWidth = 0, minHeight = 0; ///< the display's bounds, for "UserDef.ini"
    int maxWidth = 0, maxHeight = 0;
};

[[nodiscard]] std::span<const Telephone> telephones();

inline constexpr int kCaptionHeight = 24;
inline constexpr int kKeyGlow = 6; ///< a lit key shines this far

/// The part of the screen that shows the card.
[[nodiscard]] constexpr Box displayOf(const Telephone& telephone)
{
    const Box& screen = telephone.screen;
    return {
        screen.left, screen.top + kCaptionHeight, screen.width, screen.height - 2 * kCaptionHeight};
}

/// The body with all keys at rest, and each of the three keys lit.
void writeTelephonePictures(const BuilderPlaces& places, const Telephone& telephone);

/// The record of telephone `index`; `bigFonts` for screens of 120 dpi, where the same sizes in
/// pixels take smaller points.
[[nodiscard]] PreviewSkinRecord telephoneRecord(std::size_t index, bool bigFonts);

/// The text of "UserDef.ini", with the display's bounds of each telephone.
[[nodiscard]] std::string userDevicesText();

} // namespace quillmere
