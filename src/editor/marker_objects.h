#pragma once

#include "editor/page/surface_page.h"
#include "editor/surface_style.h"

#include <QFont>
#include <QPainter>
#include <QTextDocument>

#include <optional>
#include <string_view>

// How chips, the fields of inputs and the ends of groups look.

namespace quillmere {

/// The font of words that objects show: so many percent of the page's size, and never too small to
/// be read.
[[nodiscard]] QFont smallFont(
    const SurfaceStyle& style, int percent, QFont::Weight weight = QFont::Normal);

/// The size of an item with this source. `lineWidth` is that of the lines of the page, in which the
/// end of a group has a line of its own; nullopt in a table, where lines are as long as their text.
[[nodiscard]] QSizeF markerSize(
    std::string_view source, const SurfaceStyle& style, std::optional<double> lineWidth);
/// Draws one, but for the ends of a group of fields outside of tables: see drawFieldGroups().
void drawMarker(QPainter& painter, const QRectF& place, std::string_view source,
    const SurfaceStyle& style, std::optional<double> lineWidth);

/// Draws the frames round groups of fields outside of tables, as far as they are seen in `visible`,
/// a rectangle of the document.
void drawFieldGroups(QPainter& painter, const QTextDocument& document, const SurfacePage& page,
    const SurfaceStyle& style, const QRectF& visible);

} // namespace quillmere
