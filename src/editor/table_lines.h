#pragma once

#include "editor/page/surface_page.h"
#include "editor/surface_style.h"

#include <QPainter>
#include <QRectF>
#include <QTextDocument>

namespace quillmere {

/// Draws the lines of the tables of a page that touch `visible`, in the document's coordinates.
/// Tables without a border get faint lines, so that their cells can be found.
void drawTableLines(QPainter& painter, const QTextDocument& document, const SurfacePage& page,
    const SurfaceStyle& style, const QRectF& visible);

} // namespace quillmere
