#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace quillmere {

struct MatchedPair {
    std::size_t left = 0;
    std::size_t right = 0;
};

/// Pairs of positions with equal values in both sequences, rising on both sides. It is a longest
/// such list where the sequences differ in few places between two stretches that agree; where they
/// differ in many the list is a good one, and the time stays in proportion to the lengths.
[[nodiscard]] std::vector<MatchedPair> matchSequences(
    std::span<const int> left, std::span<const int> right);

} // namespace quillmere
