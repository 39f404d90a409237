#pragma once

#include <QColor>
#include <QFont>
#include <QString>

namespace quillmere {

/// How a page looks on the surface: the colours and the font of a skin's display.
struct SurfaceStyle {
    QColor ink{0x1B, 0x24, 0x10};
    QColor ground{0xD3, 0xDE, 0xB4};
    QColor link{0x0B, 0x3F, 0xA8};
    QString fontFamily = QStringLiteral("Inter");
    int fontSizePx = 16;
    friend bool operator==(const SurfaceStyle&, const SurfaceStyle&) = default;
};

/// The ink thinned on the ground: 0 is the ground, 1 the ink.
[[nodiscard]] QColor tone(const SurfaceStyle& style, double share);

/// Behind markup that cannot be shown.
[[nodiscard]] QColor chipColour(const SurfaceStyle& style);
/// Lines of tables and frames of missing pictures.
[[nodiscard]] QColor lineColour(const SurfaceStyle& style);

/// The font of the page at `sizePx` pixels.
[[nodiscard]] QFont pageFont(const SurfaceStyle& style, int sizePx);

} // namespace quillmere
