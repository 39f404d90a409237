#pragma once

#include <cstddef>
#include <span>
#include <vector>

// Where the ends of two kinds of format elements, A and B, have to go so that the elements nest.
// All by offsets of the tags' first characters, in the order of the text.

namespace quillmere {

/// The tags of two formats that may overlap.
struct OverlapTags {
    std::span<const std::size_t> openA;
    std::span<const std::size_t> closeA;
    std::span<const std::size_t> openB;
    std::span<const std::size_t> closeB;
};

/// An end that leaves its place and is put in front of the tag at `target`, behind what earlier
/// moves of the plan put there.
struct TagMove {
    std::size_t begunAt; ///< the beginning of A for which the move is made
    std::size_t source;
    std::size_t target;
    bool isA; ///< an end of A, else of B
};

/// The moves that the walk over the beginnings of A finds, those to one target in the order in
/// which the ends stand afterwards.
[[nodiscard]] std::vector<TagMove> planOverlapMoves(const OverlapTags& tags);

} // namespace quillmere
