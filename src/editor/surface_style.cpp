// Seen in the pictures of quillmere-gallery.

#include "editor/surface_style.h"

namespace quillmere {
namespace {

int between(int from, int to, double share)
{
    return from + qRound((to - from) * share);
}

} // namespace

QColor tone(const SurfaceStyle& style, double share)
{
    return {between(style.ground.red(), style.ink.red(), share),
        between(style.ground.green(), style.ink.green(), share),
        between(style.ground.blue(), style.ink.blue(), share)};
}

QColor chipColour(const SurfaceStyle& style)
{
    return tone(style, 0.19);
}

QColor lineColour(const SurfaceStyle& style)
{
    return tone(style, 0.6);
}

QFont pageFont(const SurfaceStyle& style, int sizePx)
{
    QFont font(style.fontFamily);
    font.setPixelSize(sizePx);
    // Kerning is not worth twice the time of each key in a large table. Scripts that need shaping
    // get it all the same.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

} // namespace quillmere
