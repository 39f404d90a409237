#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// What lies between two places of one cell, or of the page outside of tables. Tables between its
/// blocks belong to it as wholes.
struct CoveredRun {
    PagePlace from;
    PagePlace to;
    std::size_t firstItem = 0; ///< index in SurfacePage::items
    std::size_t endItem = 0;
};

/// What lies between two places, in either order, as runs from left to right. Where the places lie
/// in one cell, or both outside of tables, that is one run. Otherwise each cell that holds one of
/// the places is a run of its own from its start to its end, as is each cell between them in the
/// same table, and what lies outside of these tables is one run.
[[nodiscard]] std::vector<CoveredRun> coveredRuns(
    const SurfacePage& page, PagePlace first, PagePlace second);

/// The run between two places of one cell, the first ahead of the second.
[[nodiscard]] CoveredRun runBetween(const SurfacePage& page, PagePlace from, PagePlace to);

/// The place with block and offset within the page.
[[nodiscard]] PagePlace placeOnPage(const SurfacePage& page, PagePlace place);

} // namespace quillmere
