#pragma once

#include "editor/page/surface_page.h"

#include <string>

namespace quillmere::test {

/// A page as a line of text. A block is "P:" of a paragraph, with "c" or "r" ahead of the colon
/// where it stands in the middle or on the right, "-:" of none or "A:" where it holds atoms only,
/// and then its items: characters, '_' for a blank, '/' for a line break, '@' for a picture, 'O'
/// for a radio button, a chip or marker as its tag. "|bif+2a|" tells how the items behind it look:
/// bold, italic, underlined, of fixed pitch, size, link. A table is "{(block)(block);(block)}",
/// with "x2" ahead of a cell that spans two columns and "#" behind '{' where it has a border.
[[nodiscard]] std::string drawn(const SurfacePage& page);

/// The elements of a page, "Format[<b>..</b>]", with "" for the tag of an end that is missing.
[[nodiscard]] std::string drawnElements(const SurfacePage& page);

} // namespace quillmere::test
