#pragma once

#include "document/text/tag_places.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

// Which tags of a format have to go because of selection lists. A list reaches from "<select" to
// the next "</select"; without an end it is none.

namespace quillmere {

/// The tags of selection lists. In the tags that the plans get they are the keys 0 and 1.
inline constexpr std::string_view kSelectKeys[] = {"<select", "</select"};

inline constexpr TagOffset kNoTag = 0xFFFF;

/// A pair of tags to be deleted because of one list. A tag may be missing (kNoTag).
struct SelectCut {
    TagOffset list; ///< where the list begins
    TagOffset open;
    TagOffset close;
};

/// Plans the deletions for one format. `openKey` is the key of its open tag, the next one that of
/// its close tag; lists that begin ahead of `from` are left alone.
using SelectPlan = std::vector<SelectCut> (*)(
    std::span<const FoundTag> tags, std::size_t openKey, std::size_t from);

/// False where no tag of the format stands in a list and none is open where a list begins, so that
/// no pair can have to go.
[[nodiscard]] bool touchesLists(std::span<const FoundTag> tags, std::size_t openKey);

/// The pairs of which a tag stands in a list, one after the other until none does.
[[nodiscard]] std::vector<SelectCut> planCutsInside(
    std::span<const FoundTag> tags, std::size_t openKey, std::size_t from = 0);

/// The pairs that enclose a list, from the innermost one on.
[[nodiscard]] std::vector<SelectCut> planCutsAround(
    std::span<const FoundTag> tags, std::size_t openKey, std::size_t from = 0);

} // namespace quillmere
