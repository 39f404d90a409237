#pragma once

#include "editor/elements/format_tags.h"
#include "editor/page/surface_page.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// What a format goes round as a whole: an item, or all of a link.
struct FormatUnit {
    SourceRange source;
    std::size_t firstItem = 0;
    std::size_t endItem = 0;
    bool isBlank = false; ///< white space that saving drops ahead of a tag
    bool startsPiece = false; ///< no pair of tags may hold this and what is ahead of it
    bool takesFormats = true; ///< false in selection lists, and for what is no text
    bool takesSizes = true; ///< false for preformatted text, which has no big and small
    bool isMarked = false;
    FormatFlags flags;
    FormatStarts starts{}; ///< where nothing is lost; they stand in the page's text
};

/// The part of a text whose formats are written anew: its units, and the tags that go.
struct FormatRegion {
    std::vector<FormatUnit> units;
    std::vector<SourceRange> oldTags;
};

/// The units that are marked, a blank ahead of them, and all that is held by formats that touch
/// them, each with the flags of the formats round it.
[[nodiscard]] FormatRegion formatRegion(const SurfacePage& page, SourceRange marked);

} // namespace quillmere
