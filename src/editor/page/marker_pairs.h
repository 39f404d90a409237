#pragma once

#include "editor/page/markup_tags.h"

#include <string_view>
#include <vector>

namespace quillmere {

/// Makes partners of the markers that belong together: an end marker ends the last start marker
/// of its name that has no end yet, whatever else stands between them. Case does not matter.
void pairMarkers(std::string_view text, std::vector<MarkupTag>& tags);

} // namespace quillmere
