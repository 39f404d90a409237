#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quillmere::test {

inline constexpr double kTextContrast = 4.5; // WCAG 2.1, 1.4.3
inline constexpr double kShapeContrast = 3.0; // 1.4.11

/// The relative luminance of a colour 0xRRGGBB, from 0 to 1.
inline double luminance(std::uint32_t rgb)
{
    const auto linear = [rgb](unsigned shift) {
        const double value = (rgb >> shift & 0xFFU) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

/// The contrast of two colours, from 1 to 21.
inline double contrast(std::uint32_t a, std::uint32_t b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace quillmere::test
