#pragma once

#include "editor/page/surface_page.h"

#include <optional>

// Between the places of the caret on the page and the offsets in the design text. Each place has
// one offset, and it alone decides where typed text goes:
// - behind an item it lies directly behind the item's source, so that text goes on in its format,
//   in the option or in the cell that it stands in; behind the last item of a link it lies behind
//   </a>, since what is typed there is no part of the link;
// - at the start of a block it lies ahead of the first item, within the format tags next to it, but
//   ahead of any link, marker or chip;
// - in an empty block it lies behind the start tag, within the format tags that are open there.

namespace quillmere {

/// The offset in `page.text` of a place of the caret. The block must exist; an offset behind the
/// block's last item counts as behind it.
[[nodiscard]] std::size_t offsetAt(const SurfacePage& page, PagePlace place);

/// The place whose offset is `offset`, or the last one ahead of it; the first place of the page
/// where none is. placeAt(page, offsetAt(page, place)) is `place`.
[[nodiscard]] PagePlace placeAt(const SurfacePage& page, std::size_t offset);

[[nodiscard]] PagePlace firstPlace(const SurfacePage& page);
[[nodiscard]] PagePlace lastPlace(const SurfacePage& page);

/// The item behind, or ahead of, a place within its block; nullptr at the block's end, or start.
[[nodiscard]] const PageItem* itemBehind(const SurfacePage& page, PagePlace place);
[[nodiscard]] const PageItem* itemAhead(const SurfacePage& page, PagePlace place);

/// The index of the item that a tag or marker is; kNone where it is none.
[[nodiscard]] std::size_t itemOf(const SurfacePage& page, SourceRange source);
/// The place ahead of an item.
[[nodiscard]] PagePlace placeOfItem(const SurfacePage& page, std::size_t item);

/// The innermost element of a kind whose content holds the offset; kNone for none.
[[nodiscard]] std::size_t innermostElement(
    const SurfacePage& page, std::size_t offset, PageElement::Kind kind);

/// The offset in the text as ReadDesignText gives it: without all CR and LF, and without what
/// stands ahead of the first '<' of its first line.
[[nodiscard]] std::size_t offsetInJoinedLines(std::string_view text, std::size_t offset);

} // namespace quillmere
