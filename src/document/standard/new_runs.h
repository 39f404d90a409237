#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace quillmere {

enum class PieceTurn : std::uint8_t { None, Opens, Closes };

/// Of "<p>a</p><p>b</p>" out of "<p>b</p>" the new part may be "a</p><p>" as well as "<p>a</p>".
/// Moves such runs of new pieces to where they are whole elements. `places` is as alignPieces gives
/// it, `keys` and `turns` are of the same sequence.
void settleRuns(std::span<const std::uint64_t> keys, std::span<const PieceTurn> turns,
    std::vector<std::uint32_t>& places);

} // namespace quillmere
