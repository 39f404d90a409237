#pragma once

#include "document/tag_places.h"

#include <cstddef>
#include <span>
#include <vector>

// Which tags of a format have to go because of selection lists. All by offsets of the tags' first
// characters.

namespace quillmere {

/// A selection list: where its "<select" and the next "</select" stand.
struct SelectList {
    std::size_t begin;
    std::size_t end;
};

/// The lists of a text from the places of both tags; a beginning without an end is none.
[[nodiscard]] std::vector<SelectList> selectLists(
    std::span<const std::size_t> begins, std::span<const std::size_t> ends);

/// A pair of tags to be deleted because of one list. One of the tags may be missing (npos).
struct SelectCut {
    std::size_t list; ///< where the list begins
    std::size_t open;
    std::size_t close;
};

/// The pairs of which a tag stands in a list, one after the other until none does.
[[nodiscard]] std::vector<SelectCut> planCutsInside(std::span<const SelectList> lists,
    std::span<const std::size_t> opens, std::span<const std::size_t> closes);

/// The pairs that enclose a list, from the innermost one on.
[[nodiscard]] std::vector<SelectCut> planCutsAround(std::span<const SelectList> lists,
    std::span<const std::size_t> opens, std::span<const std::size_t> closes);

} // namespace quillmere
