#pragma once

#include "editor/page/surface_page.h"

#include <cstdint>
#include <string_view>

namespace quillmere {

/// Whether white space is the layout of a file: it has a line end in it.
[[nodiscard]] bool isLayout(std::string_view white);

/// `range` without the white space that it begins with, where that is layout.
[[nodiscard]] SourceRange withoutLayoutAhead(std::string_view text, SourceRange range);

/// Puts the characters of a range of `page.text`, which holds no tags, behind the page's items: one
/// for each character, reference or run of white space. Tells whether there was more than white
/// space.
bool appendText(SurfacePage& page, SourceRange range, std::uint16_t style);

} // namespace quillmere
