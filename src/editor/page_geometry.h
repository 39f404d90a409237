#pragma once

#include "editor/page/surface_page.h"
#include "editor/page_document.h"

#include <QPointF>
#include <QRectF>
#include <QTextDocument>

#include <cstddef>
#include <optional>
#include <vector>

// Where things of a page lie in the document that shows it, in the document's coordinates.

namespace quillmere {

/// The rectangle of the item behind a place.
[[nodiscard]] QRectF itemRect(const QTextDocument& document, PagePlace place);

/// The place ahead of the item that a point lies on; nullopt where it lies on none.
[[nodiscard]] std::optional<PagePlace> itemAt(
    const QTextDocument& document, const SurfacePage& page, QPointF point);

[[nodiscard]] QRectF tableRect(
    const QTextDocument& document, const SurfacePage& page, std::size_t table);

/// Where the lines between the cells of a table begin, those round it included.
struct TableLines {
    std::vector<double> rows; ///< from the top, one more than there are rows
    std::vector<double> columns; ///< from the left, one more than there are columns
};

[[nodiscard]] TableLines tableLines(
    const QTextDocument& document, const SurfacePage& page, std::size_t table);

/// The innermost table whose outer border a point lies on; kNone for none.
[[nodiscard]] std::size_t tableBorderAt(
    const QTextDocument& document, const SurfacePage& page, QPointF point);

} // namespace quillmere
