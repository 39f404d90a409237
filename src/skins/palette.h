#pragma once

#include <cstdint>
#include <string_view>

namespace quillmere {

/// One of the 24 swatches that the telephones' colours are reduced to.
struct Swatch {
    int index = 0;
    std::string_view tag; ///< the colour as text, decimal or "&H" and hexadecimal digits
    std::int32_t colour = 0; ///< red in the low byte
};

inline constexpr int kSwatchCount = 24;

/// The swatch `index`, from 0 to kSwatchCount - 1.
[[nodiscard]] Swatch swatch(int index);

/// The swatch whose number is nearest to `colour`, which counts as 0 where it is negative; of two
/// as near the one of the lower index. The colours are compared as whole numbers, so that blue,
/// in the high byte, weighs most.
[[nodiscard]] Swatch GetNearestColor(std::int32_t colour);

} // namespace quillmere
