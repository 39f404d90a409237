#pragma once

#include "editor/page/block_flow.h"
#include "editor/page/table_outline.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// Makes the tables and cells of a page of the tags of tables that fit, which it is given from left
/// to right.
class TableFlow {
public:
    /// All must outlive this.
    TableFlow(SurfacePage& page, const std::vector<TableOutline>& outlines, OpenFormats& formats,
        BlockFlow& blocks);

    /// A part of a table that fits; `index` is that in the tags.
    void read(const MarkupTag& tag, std::size_t index);
    /// Whether the place lies in a table and in none of its cells.
    [[nodiscard]] bool isBetweenCells() const;

private:
    struct OpenTable {
        std::size_t table = 0; // index in the page
        std::size_t element = 0;
        std::size_t rowElement = kNone; // of the open row
        std::size_t cellElement = kNone;
        std::size_t cell = kNone; // the open one, index in the page
        std::size_t firstCell = 0;
        int row = -1; // of the last row with cells
        int column = 0; // of the next cell
    };
    void startTable(const MarkupTag& tag);
    void startRow(const MarkupTag& tag);
    void startCell(const MarkupTag& tag);
    void closeTable(SourceRange endTag);
    void closeRow(SourceRange endTag);
    void closeCell(SourceRange endTag);

    SurfacePage& page_;
    const std::vector<TableOutline>& outlines_;
    OpenFormats& formats_;
    BlockFlow& blocks_;
    std::vector<OpenTable> open_;
};

} // namespace quillmere
