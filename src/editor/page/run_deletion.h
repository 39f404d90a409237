#pragma once

#include "editor/page/covered_runs.h"
#include "editor/page/splice_list.h"

#include <cstddef>
#include <vector>

namespace quillmere {

enum class FirstFormats { Go, Stay };

/// How one run is taken out of the text.
struct RunDeletion {
    SpliceList splices;
    CoveredRun run; ///< with the options that go with their radio buttons
    std::vector<std::size_t> itemsOutside; ///< that go as well: other ends of markers
    SourceRange between; ///< what it takes from the text, but for tags that stay
    std::size_t pasteAt = 0; ///< where markup goes in instead
    std::vector<std::size_t> round; ///< the elements round it that stay, the outermost first
    std::size_t typeAt = 0; ///< where text goes in that takes the place of the run's first item
};

/// Takes a run out: see deleteRange. With `Stay` the formats of its first item stay for text that
/// is put in its place. `run` of an empty range changes nothing.
[[nodiscard]] RunDeletion deletionOf(
    const SurfacePage& page, const CoveredRun& run, FirstFormats formats);

} // namespace quillmere
