#pragma once

#include "document/text/tag_index.h"

#include <cstdint>

namespace quillmere {

/// What the order of an area's tags gives reason to look at, one bit each.
using CleanFaults = std::uint32_t;

namespace clean_fault {

inline constexpr CleanFaults kDoBlock = 1U << 0U; ///< there is one, or a part of one
inline constexpr CleanFaults kOptionInOption = 1U << 1U; ///< or one without end
inline constexpr CleanFaults kLooseOptionEnd = 1U << 2U; ///< of no option
inline constexpr CleanFaults kLooseOption = 1U << 3U; ///< outside of lists
inline constexpr CleanFaults kOpenList = 1U << 4U; ///< no end behind the last one
inline constexpr CleanFaults kEmptyList = 1U << 5U; ///< without options
inline constexpr CleanFaults kEmptyParagraph = 1U << 6U; ///< filled by the surface
inline constexpr CleanFaults kTable = 1U << 7U; ///< holds paragraphs, or has no end
inline constexpr CleanFaults kLooseRow = 1U << 8U; ///< more than the next row's begin behind it
inline constexpr CleanFaults kParagraphRun = 1U << 9U; ///< one begins in another
inline constexpr CleanFaults kOpenParagraph = 1U << 10U; ///< no end behind the last one
inline constexpr CleanFaults kPlainNeighbours = 1U << 11U; ///< two paragraphs without alignment
inline constexpr CleanFaults kDoubledEnd = 1U << 12U; ///< a paragraph's end outside of one
inline constexpr CleanFaults kNoParagraph = 1U << 13U;
inline constexpr CleanFaults kLooseBreak = 1U << 14U; ///< outside of paragraphs
inline constexpr CleanFaults kLooseElement = 1U << 15U; ///< likewise
inline constexpr CleanFaults kCrossingFormat = 1U << 16U; ///< a paragraph ends in one
inline constexpr CleanFaults kEmptyFormat = 1U << 17U; ///< no text right behind its begin
inline constexpr CleanFaults kOverlap = 1U << 18U; ///< formats that do not nest
inline constexpr CleanFaults kTrailing = 1U << 19U; ///< paragraphs, breaks, and no do block behind
inline constexpr CleanFaults kBehindDoBlock = 1U << 20U; ///< paragraphs or breaks
inline constexpr CleanFaults kAny = 1U << 21U; ///< told of each text

} // namespace clean_fault

/// The faults of an area's text by its tags alone. A fault may be told where nothing is wrong, but
/// never the other way round: a text without it is left as it is by the passes that mend it.
[[nodiscard]] CleanFaults findCleanFaults(const TagIndex& tags);

} // namespace quillmere
