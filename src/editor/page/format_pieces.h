#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// The pieces of `within` that a format can be put round: no tag of a paragraph, row, cell, list,
/// option or link that is cut by `cut`, and none of the tables round it, lies in one of them.
/// Pieces that show nothing are left out. `reformatted` tells the elements whose tags do not
/// matter, since they are written anew as well.
[[nodiscard]] std::vector<SourceRange> formatPieces(const SurfacePage& page, SourceRange within,
    std::size_t cut, const std::vector<bool>& reformatted);

} // namespace quillmere
