#pragma once

#include "document/wml/wml_tree.h"

#include <cstdint>

namespace quillmere {

/// Lays out the new elements of a tree as those beside them are, or as those in other elements of
/// their parent's kind: on a line of their own with the same indentation, or on none. New are the
/// tokens that say so and those from `firstMended` on. In a deck `isBegun` anew each card and what
/// stands in it is on a line of its own.
void layOutNewElements(WmlTree& tree, std::uint32_t firstMended, bool isBegun);

} // namespace quillmere
