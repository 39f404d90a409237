#pragma once

#include "editor/page/covered_runs.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// How many of a page's items lie in an element, and which.
struct ItemSpan {
    std::size_t first = 0;
    std::size_t end = 0;
    [[nodiscard]] bool empty() const { return first == end; }
    [[nodiscard]] bool within(const CoveredRun& run) const
    {
        return first >= run.firstItem && end <= run.endItem;
    }
};
[[nodiscard]] ItemSpan itemsOf(const SurfacePage& page, const PageElement& element);

/// The run, made longer where it holds the radio button of an option that lies in its blocks: then
/// all of the option belongs to it.
[[nodiscard]] CoveredRun withWholeOptions(const SurfacePage& page, CoveredRun run);

/// Whether a range lies within another one; both may be the same.
[[nodiscard]] constexpr bool lies(SourceRange inner, SourceRange outer)
{
    return inner.begin >= outer.begin && inner.end <= outer.end;
}

/// The offsets of a run's places in the text.
[[nodiscard]] SourceRange offsetsOf(const SurfacePage& page, const CoveredRun& run);

/// Whether the run has the item of an element's start or end marker in it.
[[nodiscard]] bool holdsMarkerOf(
    const SurfacePage& page, const CoveredRun& run, const PageElement& element);
/// Whether that is so and the run has not all that stands between them: the element goes and its
/// content stays.
[[nodiscard]] bool losesItsMarker(
    const SurfacePage& page, const CoveredRun& run, const PageElement& element);

/// The items of markers that go and lie outside of the run.
[[nodiscard]] std::vector<std::size_t> goingItemsOutside(
    const SurfacePage& page, const CoveredRun& run, const std::vector<bool>& going);

/// Whether the tags of each element go when a run is deleted: no half of a pair is lost, since both
/// have one answer. The paragraphs of the run's first and last block stay.
[[nodiscard]] std::vector<bool> goingElements(const SurfacePage& page, const CoveredRun& run);

/// The offsets `between` made to hold all of the markers that go, with what lies within them.
[[nodiscard]] SourceRange withGoingMarkers(const SurfacePage& page, const CoveredRun& run,
    const std::vector<bool>& going, SourceRange between);

/// The innermost element that holds an offset, of those that are not going; kNone for none within
/// the content.
[[nodiscard]] std::size_t parentOf(
    const SurfacePage& page, const std::vector<bool>& going, std::size_t offset);

/// The end tag of an element with this start tag: "</b>" for "<b>".
[[nodiscard]] std::string endTagFor(std::string_view startTag);

} // namespace quillmere
