#pragma once

#include "document/text/tag_places.h"

#include <cstdint>
#include <span>
#include <vector>

// Where the ends of two kinds of format elements, A and B, have to go so that the elements nest.
// All by offsets of the tags' first characters, in the order of the text.

namespace quillmere {

/// The tags of two formats that may overlap.
struct OverlapTags {
    std::span<const TagOffset> openA;
    std::span<const TagOffset> closeA;
    std::span<const TagOffset> openB;
    std::span<const TagOffset> closeB;
};

/// An end that leaves its place and is put in front of the tag that stands at `target`.
struct TagMove {
    TagOffset begunAt; ///< the beginning of A for which the move is made
    TagOffset source;
    TagOffset target;
    std::int8_t rank; ///< of ends with one target the lower one stands first
    bool isA; ///< an end of A, else of B
};

/// The moves that the walk over the beginnings of A finds, by target and rank.
[[nodiscard]] std::vector<TagMove> planOverlapMoves(const OverlapTags& tags);

} // namespace quillmere
