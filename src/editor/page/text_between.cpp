// Held by copied_text_test.cpp.

#include "editor/page/character_entities.h"
#include "editor/page/covered_runs.h"
#include "editor/page/page_edits.h"

#include <algorithm>

namespace quillmere {

namespace {

void appendReadable(std::u16string& text, std::string_view written)
{
    while (!written.empty()) {
        const auto next = written.front() == '&' ? shownReference(written)
                                                 : ShownCharacter{shownByte(written.front()), 1};
        text += next.shown;
        written.remove_prefix(next.length);
    }
}

void appendItem(std::u16string& text, const SurfacePage& page, const PageItem& item)
{
    if (item.kind == ItemKind::Character || item.kind == ItemKind::Blank) text += item.shown;
    if (item.kind == ItemKind::LineBreak) text += u'\n';
    if (item.kind == ItemKind::Picture)
        appendReadable(text, attributeOf(item.source.in(page.text), "alt"));
}

/// The line next to a table that is there for the caret alone.
bool isEmptyLine(const SurfacePage& page, const PageBlock& block)
{
    if (itemCount(block) > 0 || block.paragraph != kNone) return false;
    if (block.cell == kNone) return true;
    const auto& cell = page.cells[block.cell];
    return cell.endBlock > cell.firstBlock + 1;
}

bool standInOneRow(const SurfacePage& page, const PageBlock& one, const PageBlock& other)
{
    if (one.cell == kNone || other.cell == kNone || one.cell == other.cell) return false;
    const auto& left = page.cells[one.cell];
    const auto& right = page.cells[other.cell];
    return left.table == right.table && left.row == right.row;
}

} // namespace

std::u16string textBetween(const SurfacePage& page, PagePlace from, PagePlace to)
{
    const auto runs = coveredRuns(page, from, to);
    std::u16string text;
    const PageBlock* last = nullptr;
    for (auto index = runs.front().from.block; index <= runs.back().to.block; ++index) {
        const auto& block = page.blocks[index];
        if (isEmptyLine(page, block)) continue;
        if (last != nullptr) text += standInOneRow(page, *last, block) ? u'\t' : u'\n';
        last = &block;
        const auto end = std::min(block.endItem, runs.back().endItem);
        for (auto item = std::max(block.firstItem, runs.front().firstItem); item < end; ++item)
            appendItem(text, page, page.items[item]);
    }
    return text;
}

} // namespace quillmere
