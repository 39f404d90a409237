#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <optional>

namespace quillmere {

/// A change of the items of one block: `removed` items from `place` on give way to the items
/// [firstItem, endItem) of the new page. Nothing to do where both are empty.
struct ItemChange {
    PagePlace place;
    std::size_t removed = 0;
    std::size_t firstItem = 0;
    std::size_t endItem = 0;
};

/// What has to change on a surface that shows `shown` so that it shows `wanted`. nullopt: blocks,
/// tables or the items of several blocks differ, and the surface has to be built anew. Items are
/// alike when they look alike; where their source lies does not matter.
[[nodiscard]] std::optional<ItemChange> differenceOf(
    const SurfacePage& shown, const SurfacePage& wanted);

} // namespace quillmere
