#pragma once

#include "document/text/tag_index.h"

#include <cstdint>

namespace quillmere {

/// What the order of an area's tags gives reason to look at, one bit each.
using CleanFaults = std::uint32_t;

namespace clean_fault {

inline constexpr CleanFaults kDoBlock = 1U << 0U; ///< there is one, or a part of one
inline constexpr CleanFaults kOptions = 1U << 1U; ///< options and their ends do not take turns
inline constexpr CleanFaults kList = 1U << 2U; ///< some of a list's markers stand nowhere
inline constexpr CleanFaults kEmptyParagraph = 1U << 3U; ///< filled by the surface
inline constexpr CleanFaults kTable = 1U << 4U; ///< paragraphs in one, loose rows, or no end
inline constexpr CleanFaults kParagraphRun = 1U << 5U; ///< one begins in another
inline constexpr CleanFaults kPlainNeighbours = 1U << 6U; ///< two paragraphs without alignment
inline constexpr CleanFaults kDoubledEnd = 1U << 7U; ///< a paragraph's end outside of one
inline constexpr CleanFaults kOpenParagraph = 1U << 8U; ///< no end behind the last one
inline constexpr CleanFaults kNoParagraph = 1U << 9U;
inline constexpr CleanFaults kLooseBreak = 1U << 10U; ///< outside of paragraphs
inline constexpr CleanFaults kLooseElement = 1U << 11U; ///< likewise
inline constexpr CleanFaults kFormat = 1U << 12U; ///< one crosses a paragraph's end or is empty
inline constexpr CleanFaults kOverlap = 1U << 13U; ///< formats do not nest
inline constexpr CleanFaults kAny = 1U << 14U; ///< told of each text

} // namespace clean_fault

/// The faults of an area's text by its tags alone. A fault may be told where nothing is wrong, but
/// never the other way round: a text without it is left as it is by the passes that mend it.
[[nodiscard]] CleanFaults findCleanFaults(const TagIndex& tags);

} // namespace quillmere
