#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace quillmere {

inline constexpr std::uint32_t kNoPiece = std::numeric_limits<std::uint32_t>::max();

/// What stayed of a sequence: for each of the `now` the index of the same one in `then`, rising, or
/// kNoPiece for a new one. As much stays as can where the two differ in at most some hundreds of
/// places; else what is there once on both sides holds its place and the rest is aligned between.
[[nodiscard]] std::vector<std::uint32_t> alignPieces(
    std::span<const std::uint64_t> then, std::span<const std::uint64_t> now);

/// The same alignment seen from the other sequence, which has `count` pieces.
[[nodiscard]] std::vector<std::uint32_t> inverted(
    std::span<const std::uint32_t> places, std::size_t count);

/// The longest rising part of a sequence, by indices; kNoPiece is passed over.
[[nodiscard]] std::vector<std::uint32_t> risingPart(std::span<const std::uint32_t> numbers);

} // namespace quillmere
