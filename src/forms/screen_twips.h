#pragma once

#include <QWidget>

#include <algorithm>

namespace quillmere {

/// What forms are drawn for: 96 dots an inch.
inline constexpr int kDesignTwips = 15;

/// How many twips, the twentieth parts of a point, the screen has in one pixel: 15 at 96 dpi, 12 at
/// 120. A screen that its factor scales as a whole stays at 15.
struct ScreenTwips {
    int x = kDesignTwips;
    int y = kDesignTwips;
};

[[nodiscard]] inline ScreenTwips screenTwips(const QWidget& widget)
{
    constexpr int kTwipsPerInch = 1440;
    return {kTwipsPerInch / std::max(1, widget.logicalDpiX()),
        kTwipsPerInch / std::max(1, widget.logicalDpiY())};
}

/// The pixels of a font size in points, as pages and labels of a skin have it.
[[nodiscard]] constexpr int fontPixels(int points, int twipsPerPixel)
{
    return points * 20 / std::max(1, twipsPerPixel);
}

} // namespace quillmere
