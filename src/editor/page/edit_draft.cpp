// The edit is made and the page read anew. Where it does not show what it should, the edit is made
// again with guards for the neighbours: "a x b" without the x is "a &nbsp;b", and "&l" with a typed
// "t" is "&amp;lt". Held by type_edits_test.cpp, delete_edits_test.cpp and edit_promises_test.cpp.

#include "editor/page/edit_draft.h"

#include "editor/page/markup_tags.h"
#include "editor/page/neighbour_guards.h"
#include "editor/page/page_places.h"
#include "editor/page/typed_text.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

constexpr char16_t kHardBlank = u'\u00A0';

/// A blank and a hard one are the same thing to see.
bool looksLike(const PageItem& one, const PageItem& other)
{
    const auto isBlank = [](const PageItem& item) {
        return item.kind == ItemKind::Blank || item.shown == kHardBlank;
    };
    if (isBlank(one) || isBlank(other)) return isBlank(one) && isBlank(other);
    return one.kind == other.kind && one.shown == other.shown;
}

bool shows(const PageItem& item, char16_t wanted)
{
    const char16_t shown = item.kind == ItemKind::Blank ? u' ' : item.shown;
    return shown == wanted && item.kind != ItemKind::Chip;
}

bool beginsWhite(std::string_view text)
{
    return !text.empty() && isWhite(text.front());
}

bool endsWhite(std::string_view text)
{
    return !text.empty() && isWhite(text.back());
}

std::size_t tablesRound(const SurfacePage& page, std::size_t block)
{
    std::size_t tables = 0;
    for (auto cell = page.blocks[block].cell; cell != kNone;
         cell = page.tables[page.cells[cell].table].outerCell)
        ++tables;
    return tables;
}

PagePlace placeBehindItem(const SurfacePage& page, std::size_t item)
{
    const auto block = std::ranges::find_if(
        page.blocks, [item](const PageBlock& candidate) { return item < candidate.endItem; });
    const auto index = static_cast<std::size_t>(block - page.blocks.begin());
    return {index, item + 1 - block->firstItem};
}

/// The caret is not left in a cell of a table that was pasted as a whole.
PagePlace outOfTables(const SurfacePage& page, PagePlace place, std::size_t tablesRoundCaret)
{
    while (tablesRound(page, place.block) > tablesRoundCaret) {
        const auto table = page.cells[page.blocks[place.block].cell].table;
        place = {page.tables[table].blockBehind, 0};
    }
    return place;
}

} // namespace

EditDraft::EditDraft(const SurfacePage& page, PagePlace from, PagePlace to, FirstFormats formats)
    : page_(page)
{
    for (const auto& run : coveredRuns(page, from, to)) {
        const auto formatsOfRun = parts_.empty() ? formats : FirstFormats::Go;
        parts_.push_back(deletionOf(page, run, formatsOfRun));
        changes_.append(parts_.back().splices);
    }
}

void EditDraft::putText(std::u16string_view typed)
{
    const auto& part = parts_.front();
    const auto* ahead = itemAhead(page_, part.run.from);
    const auto* behind = itemBehind(page_, part.run.to);
    const std::string_view text = page_.text;
    const bool lineBegins = ahead == nullptr || ahead->kind == ItemKind::LineBreak;
    TypedBorders borders;
    borders.blankHidesAhead = lineBegins || ahead->kind == ItemKind::Blank
        || endsWhite(text.substr(0, part.between.begin));
    borders.blankBehind = (behind != nullptr && behind->kind == ItemKind::Blank)
        || beginsWhite(text.substr(part.between.end));
    auto put = typedText(typed, borders);
    changes_.insert(part.typeAt, std::move(put.markup));
    shown_ = std::move(put.shown);
}

void EditDraft::putMarkup(std::string_view markup)
{
    changes_.insert(parts_.front().pasteAt, std::string(markup));
    shown_.reset();
}

SurfaceEdit EditDraft::finish() const
{
    std::optional<SurfaceEdit> unguarded;
    for (const auto guard :
        {Guard::None, Guard::References, Guard::Blanks, Guard::Brackets, Guard::All}) {
        SpliceList changes = changes_;
        for (const auto& part : parts_)
            addGuard(changes, page_, part.run, guard);
        SurfaceEdit edit{std::move(changes).take()};
        const auto after = readSurfacePage(spliced(page_.text, edit.splices), page_.rules);
        edit.caret = offsetAt(after, caretOn(after));
        if (isAsWanted(after)) return edit;
        if (!unguarded) unguarded = std::move(edit);
    }
    return *unguarded; // it changes how a broken text is read, or markup was put in that does
}

/// What stays is as it was, and what was put in stands between.
bool EditDraft::isAsWanted(const SurfacePage& after) const
{
    const auto stayingBehind = page_.items.size() - endItem();
    if (after.items.size() < firstItem() + stayingBehind) return false;
    const auto putIn = after.items.size() - firstItem() - stayingBehind;
    if (shown_ && shown_->size() != putIn) return false;
    const auto index = [](std::size_t number) { return static_cast<std::ptrdiff_t>(number); };
    const auto first = after.items.begin() + index(firstItem());
    const auto behind = first + index(putIn);
    return std::equal(after.items.begin(), first, page_.items.begin(), looksLike)
        && (!shown_ || std::equal(first, behind, shown_->begin(), shows))
        && std::equal(behind, after.items.end(), page_.items.begin() + index(endItem()), looksLike);
}

std::size_t EditDraft::itemsPutIn(const SurfacePage& after) const
{
    if (shown_) return shown_->size();
    const auto staying = page_.items.size() - (endItem() - firstItem());
    return after.items.size() > staying ? after.items.size() - staying : 0;
}

PagePlace EditDraft::caretOn(const SurfacePage& after) const
{
    const PagePlace from = parts_.front().run.from;
    const auto count = itemsPutIn(after);
    if (!shown_ && count > 0) {
        const auto last = placeBehindItem(after, firstItem() + count - 1);
        return outOfTables(after, last, tablesRound(page_, from.block));
    }
    const auto place = placeOnPage(after, {from.block, from.offset + count});
    const bool blockIsLeft = after.blocks[place.block].cell == page_.blocks[from.block].cell;
    if (blockIsLeft || place.block == 0) return place;
    return placeOnPage(after, {place.block - 1, kNone});
}

} // namespace quillmere
