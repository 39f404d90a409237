// Ends that are missing lie where the next cell, row or end of the table begins. Held by
// surface_page_test.cpp.

#include "editor/page/table_flow.h"

#include "editor/page/attribute_values.h"

#include <algorithm>

namespace quillmere {

namespace {

bool hasBorder(std::string_view startTag)
{
    const auto value = findAttribute(startTag, "border");
    return value && *value != "0";
}

SourceRange at(std::size_t offset)
{
    return {offset, offset};
}

/// Counts the columns of a table and lets the last cell of each short row take the rest of it. The
/// cells of the table are among those from `firstCell` on.
void layOutColumns(SurfacePage& page, std::size_t table, std::size_t firstCell)
{
    int columns = 0;
    for (std::size_t i = firstCell; i < page.cells.size(); ++i)
        if (page.cells[i].table == table) columns = std::max(columns, page.cells[i].column + 1);
    page.tables[table].columns = columns;
    int rowBehind = -1; // of the cell looked at before
    for (std::size_t i = page.cells.size(); i > firstCell; --i) {
        auto& cell = page.cells[i - 1];
        if (cell.table != table) continue;
        if (cell.row != rowBehind) cell.columnSpan = columns - cell.column;
        rowBehind = cell.row;
    }
}

std::size_t addElement(SurfacePage& page, PageElement::Kind kind, SourceRange start)
{
    page.elements.push_back({kind, start, {}});
    return page.elements.size() - 1;
}

} // namespace

TableFlow::TableFlow(SurfacePage& page, const std::vector<TableOutline>& outlines,
    OpenFormats& formats, BlockFlow& blocks)
    : page_(page)
    , outlines_(outlines)
    , formats_(formats)
    , blocks_(blocks)
{
}

bool TableFlow::isBetweenCells() const
{
    return !open_.empty() && open_.back().cell == kNone;
}

void TableFlow::read(const MarkupTag& tag, std::size_t index)
{
    const bool isTable = tag.name == TagName::Table;
    const bool isCell = tag.name == TagName::Cell || tag.name == TagName::HeadCell;
    if (isTable) tag.isEnd ? closeTable(tag.source) : startTable(tag);
    if (isCell) tag.isEnd ? closeCell(tag.source) : startCell(tag);
    if (tag.name == TagName::Row) tag.isEnd ? closeRow(tag.source) : startRow(tag);
    const bool isLast = outlines_[tag.table].lastTag == index;
    if (isLast && !(isTable && tag.isEnd)) closeTable(at(tag.source.end));
}

void TableFlow::startTable(const MarkupTag& tag)
{
    PageTable table;
    table.startTag = tag.source;
    table.outerCell = open_.empty() ? kNone : open_.back().cell;
    table.border = hasBorder(tag.source.in(page_.text));
    table.blockAhead = blocks_.breakAtTable(tag.source.begin);
    OpenTable open;
    open.table = page_.tables.size();
    open.element = addElement(page_, PageElement::Kind::Table, tag.source);
    open.firstCell = page_.cells.size();
    open_.push_back(open);
    page_.tables.push_back(table);
}

void TableFlow::startRow(const MarkupTag& tag)
{
    closeRow(at(tag.source.begin));
    auto& open = open_.back();
    open.rowElement = addElement(page_, PageElement::Kind::Row, tag.source);
    open.column = 0;
}

void TableFlow::startCell(const MarkupTag& tag)
{
    closeCell(at(tag.source.begin));
    auto& open = open_.back();
    if (open.column == 0) ++open.row;
    open.cell = page_.cells.size();
    open.cellElement = addElement(page_, PageElement::Kind::Cell, tag.source);
    PageCell cell;
    cell.table = open.table;
    cell.row = open.row;
    cell.column = open.column++;
    cell.firstBlock = page_.blocks.size();
    cell.content.begin = tag.source.end;
    page_.cells.push_back(cell);
    formats_.enterCell(tag.name == TagName::HeadCell);
    blocks_.enter(open.cell, tag.source.end);
}

void TableFlow::closeCell(SourceRange endTag)
{
    auto& open = open_.back();
    if (open.cell == kNone) return;
    blocks_.leave(endTag.begin);
    formats_.leaveCell(endTag.begin);
    auto& cell = page_.cells[open.cell];
    cell.content.end = endTag.begin;
    cell.endBlock = page_.blocks.size();
    page_.elements[open.cellElement].end = endTag;
    open.cell = kNone;
}

void TableFlow::closeRow(SourceRange endTag)
{
    closeCell(at(endTag.begin));
    auto& open = open_.back();
    if (open.rowElement != kNone) page_.elements[open.rowElement].end = endTag;
    open.rowElement = kNone;
}

void TableFlow::closeTable(SourceRange endTag)
{
    closeRow(at(endTag.begin));
    const auto open = open_.back();
    open_.pop_back();
    page_.elements[open.element].end = endTag;
    auto& table = page_.tables[open.table];
    table.source = {table.startTag.begin, endTag.end};
    table.rows = open.row + 1;
    layOutColumns(page_, open.table, open.firstCell);
    blocks_.resumeBehindTable(open.table, endTag.end);
}

} // namespace quillmere
