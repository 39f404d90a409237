// The start tag is made anew as a text of its own; rows and cells are then gone through once from
// left to right. Held by table_edit_test.cpp.

#include "editor/elements/table_edit.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "editor/elements/typed_values.h"
#include "editor/page/attribute_values.h"
#include "editor/page/hit_test.h"

#include <algorithm>
#include <array>
#include <vector>

namespace quillmere {

namespace {

constexpr std::string_view kCell = "<td>Zelle</td>";
constexpr std::string_view kBehindTable = "<!--Test--> <!--Test2--></br>";

struct AlignText {
    std::string_view listText;
    std::string_view code;
};
constexpr std::array kAlignTexts{
    AlignText{"Links", "L"}, AlignText{"Mittig", "C"}, AlignText{"Rechts", "R"}};

std::string times(int count, std::string_view piece)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result.append(piece);
    return result;
}

std::string rowOf(int columns)
{
    return "<tr>" + times(columns, kCell) + "</tr>";
}

std::string quoted(std::string_view name, std::string_view value)
{
    return std::string(name).append("=\"").append(value).append("\"");
}

/// The value of an attribute with its quotes, in the tag; nullopt where there is none.
std::optional<SourceRange> valueRange(std::string_view tag, std::string_view name)
{
    const auto value = findAttribute(tag, name);
    if (!value || value->data() == nullptr) return std::nullopt;
    const auto begin = static_cast<std::size_t>(value->data() - tag.data());
    const auto end = begin + value->size();
    const bool isQuoted = (tag[begin - 1] == '"' || tag[begin - 1] == '\'');
    if (!isQuoted) return SourceRange{begin, end};
    return SourceRange{begin - 1, end + (tag[end] == tag[begin - 1] ? 1 : 0)};
}

void setAttribute(
    std::string& tag, std::string_view name, std::string_view value, std::size_t elseAt)
{
    if (const auto range = valueRange(tag, name))
        tag.replace(
            range->begin, range->end - range->begin, std::string("\"").append(value).append("\""));
    else
        tag.insert(elseAt, " " + quoted(name, value) + " ");
}

/// What a change leaves alone: all but where nothing is lost, what is as the table has it.
struct Unchanged {
    bool title = false;
    bool align = false;
    bool rows = false;
    bool columns = false;
};

Unchanged unchangedIn(
    const TableSettings& shown, const TableSettings& wanted, const OutputRules& rules)
{
    if (!rules.losesNothing()) return {};
    const bool hasAlign = !wanted.align.empty(); // of the list in another language there is none
    return {typedFrom(shown.title) == typedFrom(wanted.title),
        !hasAlign || tableAlignIndex(shown.align) == tableAlignIndex(wanted.align),
        shown.rows == wanted.rows, shown.columns == wanted.columns};
}

std::string startTag(std::string tag, const TableSettings& wanted, const Unchanged& stays)
{
    auto place = std::string_view("<table").size();
    if (!stays.title) setAttribute(tag, "title", wanted.title, place);
    if (const auto title = valueRange(tag, "title")) place = title->end;
    if (!stays.align) setAttribute(tag, "align", wanted.align, place);
    if (!stays.columns) setAttribute(tag, "columns", std::to_string(wanted.columns), place);
    return tag;
}

struct Row {
    SourceRange source;
    std::vector<SourceRange> cells;
    std::size_t behindCells = 0; ///< behind the last cell of any spelling
};

/// The piece from `begin` through the first end tag `endKey` ahead of `limit`, or up to `limit`.
SourceRange through(
    std::string_view text, std::string_view endKey, std::size_t begin, std::size_t limit)
{
    const auto end = findTagFrom(text, endKey, begin);
    return {begin, end && end->end <= limit ? end->end : limit};
}

struct PieceKeys {
    std::string_view start; ///< without attributes
    std::string_view end;
};
constexpr PieceKeys kRowKeys{"<tr>", "</tr"};
constexpr PieceKeys kCellKeys{"<td>", "</td"};

std::size_t nextStart(
    std::string_view text, std::string_view start, std::size_t from, const OutputRules& rules)
{
    if (!rules.losesNothing()) return text.find(start, from);
    start.remove_suffix(1); // with attributes as well
    return findIgnoringCase(text, start, from);
}

/// The pieces from each start to its end, ahead of `within.end`.
std::vector<SourceRange> piecesOf(
    std::string_view text, const PieceKeys& keys, SourceRange within, const OutputRules& rules)
{
    std::vector<SourceRange> pieces;
    auto begin = nextStart(text, keys.start, within.begin, rules);
    while (begin < within.end) {
        const auto next = std::min(nextStart(text, keys.start, begin + 1, rules), within.end);
        pieces.push_back(through(text, keys.end, begin, next));
        begin = next < within.end ? next : npos;
    }
    return pieces;
}

std::size_t countOf(std::string_view text, std::string_view key, SourceRange within)
{
    std::size_t count = 0;
    for (auto at = findIgnoringCase(text, key, within.begin); at < within.end;
         at = findIgnoringCase(text, key, at + 1))
        ++count;
    return count;
}

std::size_t behindCells(std::string_view text, const Row& row, std::size_t rowEnd)
{
    auto behind = row.cells.empty() ? text.find('>', row.source.begin) + 1 : row.cells.back().end;
    for (auto end = findTagFrom(text, "</td", behind); end && end->end <= rowEnd;
         end = findTagFrom(text, "</td", behind))
        behind = end->end;
    return behind;
}

std::vector<Row> rowsOf(std::string_view text, SourceRange table, const OutputRules& rules)
{
    std::vector<Row> rows;
    for (const auto source : piecesOf(text, kRowKeys, table, rules)) {
        const auto rowEnd = std::min(findIgnoringCase(text, "</tr", source.begin), source.end);
        Row row{source, piecesOf(text, kCellKeys, {source.begin, rowEnd}, rules), 0};
        row.behindCells = behindCells(text, row, rowEnd);
        rows.push_back(std::move(row));
    }
    return rows;
}

void setCells(Rewriter& result, const Row& row, int columns)
{
    const auto wanted = static_cast<std::size_t>(columns);
    for (std::size_t i = wanted; i < row.cells.size(); ++i)
        result.drop(row.cells[i].begin, row.cells[i].end);
    if (row.cells.size() >= wanted) return;
    result.insert(row.behindCells, times(columns - static_cast<int>(row.cells.size()), kCell));
}

void setRows(Rewriter& result, const std::vector<Row>& rows, const TableSettings& wanted,
    const Unchanged& stays)
{
    if (rows.empty()) return;
    const auto count = stays.rows ? rows.size() : static_cast<std::size_t>(wanted.rows);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i >= count)
            result.drop(rows[i].source.begin, rows[i].source.end);
        else if (!stays.columns)
            setCells(result, rows[i], wanted.columns);
    }
    if (rows.size() >= count) return;
    result.insert(rows.back().source.end,
        times(static_cast<int>(count - rows.size()), rowOf(wanted.columns)));
}

/// Behind the first cell's tag, or behind the table's where there is no cell.
int caretInTable(std::string_view text, std::size_t table)
{
    const auto tag = findTagFrom(text, "<table", table);
    const auto cell = findTagFrom(text, "<td", table);
    const auto end = findIgnoringCase(text, "</table", table);
    return static_cast<int>(cell && cell->begin < end ? cell->end : tag ? tag->end : table);
}

} // namespace

std::string_view tableAlignCode(std::string_view listText)
{
    const auto* const row = std::ranges::find(kAlignTexts, listText, &AlignText::listText);
    return row == kAlignTexts.end() ? std::string_view{} : row->code;
}

int tableAlignIndex(std::string_view align)
{
    if (findIgnoringCase(align, "l") != npos) return 0;
    if (findIgnoringCase(align, "r") != npos) return 2;
    return findIgnoringCase(align, "c") != npos ? 1 : 0;
}

std::optional<TableSettings> GetTable(std::string_view text, int position)
{
    const auto tag = findTagFrom(text, "<table", searchOffset(position));
    if (!tag) return std::nullopt;
    TableSettings table;
    table.title = findAttribute(tag->in(text), "title").value_or(std::string_view{});
    table.align = findAttribute(tag->in(text), "align").value_or(std::string_view{});
    const auto end = std::min(findIgnoringCase(text, "</table", tag->end), text.size());
    table.rows = static_cast<int>(countOf(text, "<tr", {tag->end, end}));
    const auto firstRow = findIgnoringCase(text, "<tr", tag->end);
    const auto rowEnd = std::min(findIgnoringCase(text, "</tr", tag->end), end);
    table.columns
        = firstRow < rowEnd ? static_cast<int>(countOf(text, "<td", {firstRow, rowEnd})) : 0;
    return table;
}

ElementEdit InsertTable(
    std::string_view text, int position, const TableSettings& wanted, const OutputRules& rules)
{
    const auto valid = ValidInsertPosition(position, text, WmlElement::Table, rules);
    const auto place = static_cast<std::size_t>(std::max(valid, 0));
    std::string table = "<table " + quoted("title", wanted.title) + " "
        + quoted("align", wanted.align) + " " + quoted("columns", std::to_string(wanted.columns))
        + " border=\"1\">";
    table += times(wanted.rows, rowOf(wanted.columns)) + "</table>";
    if (!rules.losesNothing()) table += kBehindTable;
    const auto [start, end] = neededParagraphAt(readSurfacePage(std::string(text), rules), place);
    table.insert(0, start).append(end);
    auto changed = withPiece(text, {place, place}, table, rules);
    const int caret = caretInTable(changed, place);
    return {std::move(changed), caret};
}

ElementEdit SetTable(
    std::string_view text, int position, const TableSettings& wanted, const OutputRules& rules)
{
    const auto tag = findTagFrom(text, "<table", searchOffset(position));
    if (!tag) return unchanged(text, position);
    const auto stays = unchangedIn(*GetTable(text, position), wanted, rules);
    Rewriter result(text);
    result.drop(tag->begin, tag->end);
    result.insert(tag->end, startTag(std::string(tag->in(text)), wanted, stays));
    const auto end = findIgnoringCase(text, "</table", tag->end);
    if (end != npos) setRows(result, rowsOf(text, {tag->end, end}, rules), wanted, stays);
    auto changed = result.take();
    requireAddressable(changed, rules.maxTextLength());
    const int caret = caretInTable(changed, tag->begin);
    return {std::move(changed), caret};
}

ElementEdit DeleteTable(std::string_view text, int position, const OutputRules& rules)
{
    const auto begin = findIgnoringCase(text, "<table", searchOffset(position));
    const auto end = begin == npos ? npos : findIgnoringCase(text, "/table>", begin);
    if (end == npos) return unchanged(text, position);
    const auto behind = text.find('>', end) + 1;
    return {withPiece(text, {begin, behind}, {}, rules), static_cast<int>(begin)};
}

} // namespace quillmere
