// Of each place the chain of its cells is known, from the innermost to the outermost one. Where the
// chains part, each place is outside of tables or in a cell of a table of the common ground.
// Held by delete_edits_test.cpp.

#include "editor/page/covered_runs.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

std::size_t cellAround(const SurfacePage& page, std::size_t cell)
{
    return page.tables[page.cells[cell].table].outerCell;
}

/// The cells round a block, the outermost first.
std::vector<std::size_t> cellsRound(const SurfacePage& page, std::size_t block)
{
    std::vector<std::size_t> cells;
    for (auto cell = page.blocks[block].cell; cell != kNone; cell = cellAround(page, cell))
        cells.push_back(cell);
    std::reverse(cells.begin(), cells.end());
    return cells;
}

PagePlace endOfBlock(const SurfacePage& page, std::size_t block)
{
    return {block, itemCount(page.blocks[block])};
}

class RunCollector {
public:
    explicit RunCollector(const SurfacePage& page)
        : page_(page)
    {
    }

    void between(PagePlace from, PagePlace to)
    {
        const auto cellsFrom = cellsRound(page_, from.block);
        const auto cellsTo = cellsRound(page_, to.block);
        const auto parting = std::ranges::mismatch(cellsFrom, cellsTo);
        const std::size_t cellFrom = parting.in1 == cellsFrom.end() ? kNone : *parting.in1;
        const std::size_t cellTo = parting.in2 == cellsTo.end() ? kNone : *parting.in2;
        if (sameTable(cellFrom, cellTo))
            cells(page_.cells[cellFrom].table, cellFrom, cellTo);
        else
            betweenTables(from, cellFrom, to, cellTo);
    }

    [[nodiscard]] std::vector<CoveredRun> take() { return std::move(runs_); }

private:
    [[nodiscard]] bool sameTable(std::size_t one, std::size_t other) const
    {
        return one != kNone && other != kNone && page_.cells[one].table == page_.cells[other].table;
    }

    /// The cells of one table from `first` to `last`, each from its start to its end.
    void cells(std::size_t table, std::size_t first, std::size_t last)
    {
        for (std::size_t cell = first; cell <= last; ++cell) {
            const auto& covered = page_.cells[cell];
            if (covered.table != table) continue; // of a table within one of the cells
            runs_.push_back(runBetween(
                page_, {covered.firstBlock, 0}, endOfBlock(page_, covered.endBlock - 1)));
        }
    }

    void betweenTables(PagePlace from, std::size_t cellFrom, PagePlace to, std::size_t cellTo)
    {
        if (cellFrom != kNone) {
            const auto table = page_.cells[cellFrom].table;
            cells(table, cellFrom, page_.cells.size() - 1);
            from = {page_.tables[table].blockBehind, 0};
        }
        const PagePlace end = cellTo == kNone
            ? to
            : endOfBlock(page_, page_.tables[page_.cells[cellTo].table].blockAhead);
        runs_.push_back(runBetween(page_, from, end));
        if (cellTo != kNone) cells(page_.cells[cellTo].table, 0, cellTo);
    }

    const SurfacePage& page_;
    std::vector<CoveredRun> runs_;
};

} // namespace

PagePlace placeOnPage(const SurfacePage& page, PagePlace place)
{
    if (place.block >= page.blocks.size()) place = {page.blocks.size() - 1, kNone};
    return {place.block, std::min(place.offset, itemCount(page.blocks[place.block]))};
}

CoveredRun runBetween(const SurfacePage& page, PagePlace from, PagePlace to)
{
    return {from, to, page.blocks[from.block].firstItem + from.offset,
        page.blocks[to.block].firstItem + to.offset};
}

std::vector<CoveredRun> coveredRuns(const SurfacePage& page, PagePlace first, PagePlace second)
{
    RunCollector collector(page);
    first = placeOnPage(page, first);
    second = placeOnPage(page, second);
    collector.between(std::min(first, second), std::max(first, second));
    return collector.take();
}

} // namespace quillmere
