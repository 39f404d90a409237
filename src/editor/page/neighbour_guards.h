#pragma once

#include "editor/page/covered_runs.h"
#include "editor/page/splice_list.h"

namespace quillmere {

/// What can happen to the neighbours of a run when it goes or something is put in its place.
enum class Guard {
    None,
    References, ///< an '&' ahead begins a reference with what follows it now: "&" and "lt;"
    Blanks, ///< two blanks become one, or one stands where it is not seen
    Brackets, ///< a '<' ahead begins a tag, since a '>' follows it now
    All,
};

/// Adds to `changes` what keeps the items next to a run as they are: &amp; and &lt; in place of
/// single characters, a semicolon for a reference without one, and &nbsp; in place of a blank.
void addGuard(SpliceList& changes, const SurfacePage& page, const CoveredRun& run, Guard guard);

} // namespace quillmere
