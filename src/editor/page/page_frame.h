#pragma once

#include "editor/page/markup_tags.h"

#include <string_view>
#include <vector>

namespace quillmere {

/// What lies between the frame of a design text. The frame ahead ends behind <BODY>; in a text
/// without one behind those of its card marker, do block, declarations, <HTML> and <HEAD> that
/// stand ahead of all else. The frame behind begins at the last </BODY>, else at the last </HTML>,
/// else at a card's end marker that ends the text.
[[nodiscard]] SourceRange contentOf(std::string_view text, const std::vector<MarkupTag>& tags);

} // namespace quillmere
