#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillmere {

/// A picture whose pixels are numbers of colours.
struct IndexedPicture {
    std::int32_t widthPx = 0; ///< from 1 on
    std::int32_t heightPx = 0; ///< from 1 on
    int bitsPerPixel = 1; ///< 1 or 8
    std::vector<std::int32_t> palette; ///< red in the low byte; as many as the bits can tell apart
    std::string rows; ///< top to bottom, each of whole bytes, the first pixel in the highest bits
};

/// The bytes of a BMP file with the picture (Windows bitmap, version 3, not compressed).
[[nodiscard]] std::string bmpBytes(const IndexedPicture& picture);

} // namespace quillmere
