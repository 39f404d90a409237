// What is selected on the surface, told in places of the page and in places of the text. Held by
// design_surface_test.cpp.

#include "editor/design_surface.h"

#include "document/text/windows1252.h"
#include "editor/page/page_places.h"
#include "editor/page_geometry.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextTable>

#include <algorithm>

namespace quillmere {
namespace {

/// The name of a start tag in lower case.
std::string nameOf(std::string_view tag)
{
    const auto name = tag.substr(std::min<std::size_t>(1, tag.size()));
    return lowerCase(name.substr(0, name.find_first_of(" \t\r\n/>")));
}

} // namespace

PagePlace DesignSurface::placeAtPosition(int position) const
{
    auto place = placeOf(*document(), {position});
    place.block = std::min(place.block, page_.blocks.size() - 1);
    place.offset = std::min(place.offset, itemCount(page_.blocks[place.block]));
    return place;
}

PagePlace DesignSurface::caretPlace() const
{
    return placeAtPosition(textCursor().position());
}

std::size_t DesignSurface::caretOffset() const
{
    return offsetAt(page_, caretPlace());
}

void DesignSurface::setCaretOffset(std::size_t offset)
{
    setCaret(placeAt(page_, offset));
}

void DesignSurface::setCaret(PagePlace place)
{
    select({place, place});
}

void DesignSurface::select(const Range& range)
{
    dropControl();
    auto cursor = textCursor();
    cursor.setPosition(positionOf(*document(), range.from).value);
    if (!range.empty())
        cursor.setPosition(positionOf(*document(), range.to).value, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    caretMoved();
}

/// The caret goes ahead of an object, and ahead of a table, unseen while the frame is shown.
void DesignSurface::selectControl(const Control& control)
{
    const auto& tables = page_.tables;
    const auto place = control.table == kNone
        ? control.item
        : PagePlace{tables[control.table].blockAhead,
            itemCount(page_.blocks[tables[control.table].blockAhead])};
    {
        const QScopedValueRollback guard(showing_, true);
        select({place, place});
    }
    control_ = control;
    setCursorWidth(0);
    viewport()->update();
}

void DesignSurface::dropControl()
{
    if (!control_) return;
    control_.reset();
    setCursorWidth(kCaretWidthPx);
    viewport()->update();
}

// Cells that are marked side by side are marked whole, as they are shown.
std::vector<DesignSurface::Range> DesignSurface::selectedCells() const
{
    const auto cursor = textCursor();
    auto* table = cursor.hasComplexSelection() ? cursor.currentTable() : nullptr;
    if (table == nullptr) return {};
    int row = 0, rows = 0, column = 0, columns = 0;
    cursor.selectedTableCells(&row, &rows, &column, &columns);
    std::vector<Range> cells;
    for (int y = row; y < row + rows; ++y)
        for (int x = column; x < column + columns; ++x) {
            const auto cell = table->cellAt(y, x);
            if (cell.column() != x) continue; // a wide cell comes once
            cells.push_back(
                {placeAtPosition(cell.firstPosition()), placeAtPosition(cell.lastPosition())});
        }
    return cells;
}

DesignSurface::Range DesignSurface::selectedRange() const
{
    if (control_ && control_->table == kNone)
        return {control_->item, {control_->item.block, control_->item.offset + 1}};
    if (control_) {
        const auto& table = page_.tables[control_->table];
        return {
            {table.blockAhead, itemCount(page_.blocks[table.blockAhead])}, {table.blockBehind, 0}};
    }
    if (const auto cells = selectedCells(); !cells.empty())
        return {cells.front().from, cells.back().to};
    const auto cursor = textCursor();
    return {placeAtPosition(cursor.selectionStart()), placeAtPosition(cursor.selectionEnd())};
}

/// Of marked cells those alone, not what lies between them in the text.
std::vector<DesignSurface::Range> DesignSurface::selectedRanges() const
{
    auto ranges = selectedCells();
    if (ranges.empty()) ranges.push_back(selectedRange());
    return ranges;
}

DesignSurface::Element DesignSurface::elementOf(std::string tag, SourceRange source) const
{
    return {std::move(tag), source, std::string(source.in(page_.text))};
}

DesignSurface::Element DesignSurface::controlElement(const Control& control) const
{
    if (control.table != kNone) return elementOf("table", page_.tables[control.table].startTag);
    const auto* item = itemBehind(page_, control.item);
    if (item == nullptr) return elementOf("body", {});
    const auto source = item->source;
    const auto end = page_.text.find('>', source.begin);
    return elementOf(nameOf(source.in(page_.text)), {source.begin, std::min(end + 1, source.end)});
}

SurfaceSelection DesignSurface::selection() const
{
    SurfaceSelection told;
    const auto range = selectedRange();
    told.objectSelected = control_.has_value();
    told.type = SurfaceSelection::Type::None;
    if (control_) {
        told.type = SurfaceSelection::Type::Control;
        told.control = this->told(controlElement(*control_));
    } else if (!range.empty()) {
        told.type = SurfaceSelection::Type::Text;
    }
    told.event = event_;
    told.marked = joined(sourceOf(range));
    told.limit = page_.rules.maxTextLength();
    return told;
}

/// From the first to the last item that is marked, without the tags round them: so it begins and
/// ends in the same link or option wherever they do.
SourceRange DesignSurface::sourceOf(const Range& range) const
{
    const auto first = page_.blocks[range.from.block].firstItem + range.from.offset;
    const auto end = page_.blocks[range.to.block].firstItem + range.to.offset;
    if (first >= end) return {offsetAt(page_, range.from), offsetAt(page_, range.to)};
    return {page_.items[first].source.begin, page_.items[end - 1].source.end};
}

/// An element as it is told to others, who know the text with its lines joined.
DesignSurface::Element DesignSurface::told(Element element) const
{
    element.source = joined(element.source);
    std::erase_if(element.startTag, [](char c) { return c == '\r' || c == '\n'; });
    return element;
}

SourceRange DesignSurface::joined(SourceRange range) const
{
    return {
        offsetInJoinedLines(page_.text, range.begin), offsetInJoinedLines(page_.text, range.end)};
}

std::string DesignSurface::selectedMarkup() const
{
    std::string markup;
    for (const auto& cell : selectedCells())
        markup += (markup.empty() ? "" : "<br/>") + markupBetween(page_, cell.from, cell.to);
    if (!markup.empty()) return markup;
    return markupBetween(page_, selectedRange().from, selectedRange().to);
}

QString DesignSurface::selectedText() const
{
    return QString::fromStdU16String(textBetween(page_, selectedRange().from, selectedRange().to));
}

} // namespace quillmere
