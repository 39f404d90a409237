#pragma once

#include "document/repair/overlap_plan.h"
#include "document/text/tag_places.h"

#include <string>

namespace quillmere {

/// Makes the elements of the formats `a` and `b` nest, in place. `tags` are those of the text.
/// Returns whether something moved, so that the tags have to be looked for again.
bool nestOverlaps(std::string& text, const TagPair& a, const TagPair& b, const OverlapTags& tags);

} // namespace quillmere
