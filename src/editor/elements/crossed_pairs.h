#pragma once

#include "editor/page/surface_page.h"

#include <optional>
#include <string_view>

namespace quillmere {

/// The elements whose border a text format must not cross, in the order in which they are tested.
enum class CrossedPair { Select, Option, Table };

/// The first kind of element that a selection crosses: its begin and its end lie in different
/// elements of that kind, or one in an element and the other in none. A selection that holds a
/// whole element crosses nothing. Case does not matter; an element without an end is none.
[[nodiscard]] std::optional<CrossedPair> crossedPair(std::string_view text, SourceRange marked);

} // namespace quillmere
