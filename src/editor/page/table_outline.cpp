// One walk with a stack of the tables that are open. A table goes wrong when one of its tags
// follows what interrupted it, that is, what was seen while none of its cells was open. Held by
// surface_page_test.cpp.

#include "editor/page/table_outline.h"

#include <algorithm>

namespace quillmere {

namespace {

struct Candidate {
    std::uint32_t lastTag = 0;
    bool isWrong = false;
    std::size_t rows = 0; // that have a cell
    std::size_t columns = 0;
};

struct OpenTable {
    std::uint32_t candidate = 0;
    bool rowIsOpen = false;
    bool cellIsOpen = false;
    bool isInterrupted = false;
    std::size_t cellsInRow = 0;
};

class TableWalk {
public:
    explicit TableWalk(std::vector<MarkupTag>& tags)
        : tags_(tags)
    {
    }
    void see(std::string_view textAhead);
    void see(std::uint32_t index);
    [[nodiscard]] std::vector<TableOutline> finish();

private:
    void interrupt();
    void own(std::uint32_t index);
    void start(std::uint32_t index);
    void startPart(std::uint32_t index);
    void startRow();
    void startCell();
    void end(std::uint32_t index);
    bool endPart(bool OpenTable::*part, std::size_t openParts);
    void close(bool OpenTable::*part, std::size_t& openParts);
    void openPart(bool OpenTable::*part, std::size_t& openParts);
    void pop();

    std::vector<MarkupTag>& tags_;
    std::vector<Candidate> candidates_;
    std::vector<OpenTable> open_;
    std::size_t openRows_ = 0; // of all open tables
    std::size_t openCells_ = 0;
};

void TableWalk::interrupt()
{
    if (!open_.empty() && !open_.back().cellIsOpen) open_.back().isInterrupted = true;
}

void TableWalk::see(std::string_view textAhead)
{
    if (open_.empty() || open_.back().cellIsOpen) return;
    if (!std::ranges::all_of(textAhead, isWhite)) interrupt();
}

void TableWalk::see(std::uint32_t index)
{
    const auto& tag = tags_[index];
    if (isComment(tag.name)) return;
    const bool isEnd = tag.isEnd && tag.name != TagName::RowGroup;
    if (!isTablePart(tag.name))
        interrupt();
    else if (isEnd)
        end(index);
    else if (tag.name == TagName::Table)
        start(index);
    else
        startPart(index);
}

/// The tag is one of the innermost table.
void TableWalk::own(std::uint32_t index)
{
    auto& table = open_.back();
    auto& candidate = candidates_[table.candidate];
    if (table.isInterrupted) candidate.isWrong = true;
    candidate.lastTag = index;
    tags_[index].table = table.candidate;
}

void TableWalk::start(std::uint32_t index)
{
    interrupt();
    open_.push_back({static_cast<std::uint32_t>(candidates_.size())});
    candidates_.push_back({index, open_.size() > kMaxTableDepth});
    own(index);
}

void TableWalk::startPart(std::uint32_t index)
{
    if (open_.empty()) return;
    const auto name = tags_[index].name;
    if (name == TagName::RowGroup && open_.back().cellIsOpen) return; // a chip in the cell
    own(index);
    if (name == TagName::RowGroup) return;
    close(&OpenTable::cellIsOpen, openCells_);
    if (name != TagName::Row)
        startCell();
    else
        startRow();
}

void TableWalk::startRow()
{
    openPart(&OpenTable::rowIsOpen, openRows_);
    open_.back().cellsInRow = 0;
}

void TableWalk::startCell()
{
    auto& table = open_.back();
    auto& candidate = candidates_[table.candidate];
    if (table.cellsInRow++ == 0) ++candidate.rows;
    candidate.columns = std::max(candidate.columns, table.cellsInRow);
    if (!table.rowIsOpen || candidate.rows * candidate.columns > kMaxTableArea)
        candidate.isWrong = true;
    if (table.rowIsOpen) openPart(&OpenTable::cellIsOpen, openCells_);
}

void TableWalk::end(std::uint32_t index)
{
    const auto name = tags_[index].name;
    const bool isRow = name == TagName::Row;
    const bool fits = name == TagName::Table ? !open_.empty()
        : isRow                              ? endPart(&OpenTable::rowIsOpen, openRows_)
                                             : endPart(&OpenTable::cellIsOpen, openCells_);
    if (!fits) return interrupt();
    own(index);
    close(&OpenTable::cellIsOpen, openCells_);
    if (isRow) close(&OpenTable::rowIsOpen, openRows_);
    if (name == TagName::Table) pop();
}

/// An end that the innermost table cannot take ends that table, if one around it can take it.
bool TableWalk::endPart(bool OpenTable::*part, std::size_t openParts)
{
    if (openParts == 0) return false;
    while (!(open_.back().*part))
        pop();
    return true;
}

void TableWalk::openPart(bool OpenTable::*part, std::size_t& openParts)
{
    close(part, openParts);
    open_.back().*part = true;
    ++openParts;
}

void TableWalk::close(bool OpenTable::*part, std::size_t& openParts)
{
    if (!(open_.back().*part)) return;
    open_.back().*part = false;
    --openParts;
}

void TableWalk::pop()
{
    close(&OpenTable::cellIsOpen, openCells_);
    close(&OpenTable::rowIsOpen, openRows_);
    open_.pop_back();
}

std::vector<TableOutline> TableWalk::finish()
{
    for (const auto& table : open_) // nothing can be typed behind a cell that never ends
        if (table.cellIsOpen) candidates_[table.candidate].isWrong = true;
    for (auto& tag : tags_) {
        if (tag.table == kNoTag) continue;
        const auto& candidate = candidates_[tag.table];
        if (candidate.isWrong || candidate.rows == 0) tag.table = kNoTag;
    }
    std::vector<TableOutline> outlines;
    for (const auto& candidate : candidates_)
        outlines.push_back({candidate.lastTag});
    return outlines;
}

} // namespace

std::vector<TableOutline> outlineTables(
    std::string_view text, SourceRange content, std::vector<MarkupTag>& tags)
{
    TableWalk walk(tags);
    std::size_t read = content.begin;
    for (std::uint32_t index = 0; index < tags.size(); ++index) {
        const auto source = tags[index].source;
        if (source.begin < content.begin || source.begin >= content.end) continue;
        walk.see(SourceRange{read, source.begin}.in(text));
        walk.see(index);
        read = source.end;
    }
    return walk.finish();
}

} // namespace quillmere
