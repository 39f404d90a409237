#pragma once

#include "editor/page/page_difference.h"
#include "editor/page/surface_page.h"
#include "editor/surface_style.h"

#include <QTextDocument>

#include <cstddef>

// The picture of a page as a text document: the page's blocks in the page's order, one character of
// the document for each item. Nothing is ever read back from it.

namespace quillmere {

/// A place between the characters of a text document, as QTextCursor counts.
struct CaretPosition {
    int value = 0;
    friend bool operator==(const CaretPosition&, const CaretPosition&) = default;
};

/// Fills an empty document with a page.
void showPage(QTextDocument& empty, const SurfacePage& page, const SurfaceStyle& style);

/// Makes a document that shows the page ahead of an edit show `wanted`, the page behind it.
void showChange(QTextDocument& document, const SurfacePage& wanted, const ItemChange& change,
    const SurfaceStyle& style);

[[nodiscard]] PagePlace placeOf(const QTextDocument& document, CaretPosition position);
/// An offset behind the block's end counts as its end.
[[nodiscard]] CaretPosition positionOf(const QTextDocument& document, PagePlace place);

/// Whether a block is an empty line ahead of or behind a table, which is low while the caret is
/// elsewhere.
[[nodiscard]] bool isLineNextToTable(const SurfacePage& page, std::size_t block);

/// Gives a block the height that it has with, or without, the caret in it.
void setCaretInBlock(QTextDocument& document, const SurfacePage& page, std::size_t block,
    bool caretInIt, const SurfaceStyle& style);

} // namespace quillmere
