#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// A line of a page outside of tables, or a table.
struct PageLine {
    SourceRange source; ///< without the <br> that ends it
    std::size_t paragraph = kNone; ///< index of the <p> in the page's elements
    Alignment alignment = Alignment::Left;
    bool isTable = false;
    bool mayAlign = true; ///< false for preformatted text and for atoms outside of paragraphs
};

/// The lines of a page from the first to the last. An empty block next to a table is none. Where
/// nothing is lost, what a group of fields or another element holds together is one line.
[[nodiscard]] std::vector<PageLine> pageLines(const SurfacePage& page);

} // namespace quillmere
