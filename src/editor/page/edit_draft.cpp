// The edit is made and the page read anew. Where it does not show what it should, the edit is made
// again with guards for the neighbours: "a x b" without the x is "a &nbsp;b", and "&l" with a typed
// "t" is "&amp;lt". Held by type_edits_test.cpp, delete_edits_test.cpp and edit_promises_test.cpp.

#include "editor/page/edit_draft.h"

#include "editor/page/markup_tags.h"
#include "editor/page/neighbour_guards.h"
#include "editor/page/page_places.h"
#include "editor/page/typed_text.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

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

/// The caret is not left in a cell of a table that was pasted as a whole.
PagePlace outOfTables(const SurfacePage& page, PagePlace place, std::size_t tablesRoundCaret)
{
    while (tablesRound(page, place.block) > tablesRoundCaret) {
        const auto table = page.cells[page.blocks[place.block].cell].table;
        place = {page.tables[table].blockBehind, 0};
    }
    return place;
}

/// What can stand on its own outside of paragraphs.
bool needsNoParagraph(std::string_view markup, const OutputRules& rules)
{
    const auto shown = readSurfacePage(std::string(markup), rules);
    return std::ranges::all_of(shown.blocks, [](const PageBlock& block) {
        return block.isAside || block.paragraph != kNone || itemCount(block) == 0;
    });
}

} // namespace

EditDraft::EditDraft(const SurfacePage& page, PagePlace from, PagePlace to, FirstFormats formats)
    : page_(page)
{
    for (const auto& run : coveredRuns(page, from, to)) {
        const auto formatsOfRun = parts_.empty() ? formats : FirstFormats::Go;
        parts_.push_back(deletionOf(page, run, formatsOfRun));
        changes_.append(parts_.back().splices);
        std::ranges::copy(parts_.back().itemsOutside, std::back_inserter(itemsOutside_));
    }
    std::erase_if(itemsOutside_, [this](auto i) { return i >= firstItem() && i < endItem(); });
    std::ranges::sort(itemsOutside_);
    const auto twice = std::unique(itemsOutside_.begin(), itemsOutside_.end());
    itemsOutside_.erase(twice, itemsOutside_.end()); // of parts in several cells
    putAt_ = firstItem();
}

/// Whether what is put in would stand where no text may.
bool EditDraft::standsAside() const
{
    const auto& run = parts_.front().run;
    return page_.blocks[run.from.block].isAside && page_.blocks[run.to.block].isAside;
}

void EditDraft::putAsParagraph(const std::string& markup)
{
    const auto& block = page_.blocks[parts_.front().run.to.block];
    changes_.insert(block.content.end, "<p>" + markup + "</p>");
    if (parts_.size() == 1) putAt_ = block.endItem;
}

void EditDraft::putText(std::u16string_view typed)
{
    const auto& part = parts_.front();
    const auto* ahead = itemAhead(page_, part.run.from);
    const auto* behind = itemBehind(page_, part.run.to);
    const std::string_view text = page_.text;
    const bool lineBegins = ahead == nullptr || ahead->kind == ItemKind::LineBreak || standsAside();
    TypedBorders borders;
    borders.blankHidesAhead = lineBegins || ahead->kind == ItemKind::Blank
        || endsWhite(text.substr(0, part.between.begin));
    borders.blankBehind = (behind != nullptr && behind->kind == ItemKind::Blank)
        || beginsWhite(text.substr(part.between.end));
    borders.takesBreaks
        = !page_.rules.losesNothing() || mayStand(page_, part.round, WmlElement::LineBreak);
    auto put = typedText(typed, borders);
    shown_ = std::move(put.shown);
    if (standsAside() && !put.markup.empty())
        putAsParagraph(put.markup);
    else
        changes_.insert(part.typeAt, std::move(put.markup));
}

void EditDraft::putMarkup(std::string_view markup)
{
    shown_.reset();
    const auto& part = parts_.front();
    FittingMarkup fitting{{{part.pasteAt, std::string(markup)}}, {}};
    if (page_.rules.losesNothing()) {
        std::vector<SourceRange> going(parts_.size());
        std::ranges::transform(parts_, going.begin(), &RunDeletion::between);
        fitting = fittingMarkup(page_, part.pasteAt, part.round, markup, going);
    }
    const auto& here = fitting.here.front().markup;
    const bool isOnePiece = fitting.here.size() == 1 && !here.empty();
    if (standsAside() && isOnePiece && !needsNoParagraph(here, page_.rules))
        putAsParagraph(here);
    else
        for (auto& piece : fitting.here)
            changes_.insert(piece.offset, std::move(piece.markup));
    elsewhere_ = std::move(fitting.elsewhere);
}

/// The caret is an offset behind the changes alone.
SurfaceEdit EditDraft::withElsewhere(SpliceList changes, std::size_t caret) const
{
    if (elsewhere_.empty()) return {std::move(changes).take(), caret};
    SpliceList all;
    for (const auto& placed : elsewhere_) {
        all.insert(placed.offset, placed.markup);
        if (placed.offset <= parts_.front().pasteAt) caret += placed.markup.size();
    }
    all.append(changes);
    SurfaceEdit edit{std::move(all).take()};
    const auto after = readSurfacePage(spliced(page_.text, edit.splices), page_.rules);
    edit.caret = offsetAt(after, placeAt(after, caret));
    return edit;
}

SurfaceEdit EditDraft::finish() const
{
    std::optional<SurfaceEdit> unguarded;
    for (const auto guard :
        {Guard::None, Guard::References, Guard::Blanks, Guard::Brackets, Guard::All}) {
        SpliceList changes = changes_;
        for (const auto& part : parts_)
            addGuard(changes, page_, part.run, guard);
        const auto after
            = readSurfacePage(spliced(page_.text, SpliceList(changes).take()), page_.rules);
        auto edit = withElsewhere(std::move(changes), offsetAt(after, caretOn(after)));
        if (isAsWanted(after)) return edit;
        if (!unguarded) unguarded = std::move(edit);
    }
    return *unguarded; // it changes how a broken text is read, or markup was put in that does
}

/// In pieces, in their order; something may be put in between two of them, and nothing else.
std::vector<ItemSpan> EditDraft::stayingItems() const
{
    std::vector<ItemSpan> gone{{firstItem(), endItem()}};
    if (putAt_ != firstItem()) gone.push_back({putAt_, putAt_});
    for (const auto item : itemsOutside_)
        gone.push_back({item, item + 1});
    std::ranges::sort(gone, {}, &ItemSpan::first);
    std::vector<ItemSpan> staying;
    std::size_t begin = 0;
    for (const auto span : gone) {
        staying.push_back({begin, span.first});
        begin = span.end;
    }
    staying.push_back({begin, page_.items.size()});
    return staying;
}

std::size_t EditDraft::stayingCount() const
{
    return page_.items.size() - (endItem() - firstItem()) - itemsOutside_.size();
}

/// How many items outside of the places go that stand ahead of an item.
std::size_t EditDraft::outsideAhead(std::size_t item) const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(itemsOutside_, [item](auto each) { return each < item; }));
}

/// The index of the first item that was put in, on the page behind the edit.
std::size_t EditDraft::firstPutIn() const
{
    const auto gone = putAt_ > firstItem() ? endItem() - firstItem() : 0;
    return putAt_ - gone - outsideAhead(putAt_);
}

/// What stays is as it was, and what was put in stands between.
bool EditDraft::isAsWanted(const SurfacePage& after) const
{
    if (after.items.size() < stayingCount()) return false;
    const auto putIn = after.items.size() - stayingCount();
    const std::span items(after.items);
    if (shown_ && !std::ranges::equal(items.subspan(firstPutIn(), putIn), *shown_, shows))
        return false;
    std::size_t at = 0;
    for (const auto span : stayingItems()) {
        if (span.first >= putAt_ && at == firstPutIn()) at += putIn;
        const auto count = span.end - span.first;
        const auto before = std::span(page_.items).subspan(span.first, count);
        if (!std::ranges::equal(items.subspan(at, count), before, looksLike)) return false;
        at += count;
    }
    return true;
}

std::size_t EditDraft::itemsPutIn(const SurfacePage& after) const
{
    if (shown_) return shown_->size();
    return after.items.size() > stayingCount() ? after.items.size() - stayingCount() : 0;
}

PagePlace EditDraft::caretOn(const SurfacePage& after) const
{
    const auto& run = parts_.front().run;
    const auto count = itemsPutIn(after);
    const bool isWithBlock = shown_ && !page_.blocks[run.from.block].isAside;
    if (!isWithBlock && count > 0 && firstPutIn() + count <= after.items.size()) {
        auto last = placeOfItem(after, firstPutIn() + count - 1);
        ++last.offset;
        return outOfTables(after, last, tablesRound(page_, run.from.block));
    }
    const auto outside
        = outsideAhead(run.firstItem) - outsideAhead(page_.blocks[run.from.block].firstItem);
    const auto place = placeOnPage(after, {run.from.block, run.from.offset - outside + count});
    const bool blockIsLeft = after.blocks[place.block].cell == page_.blocks[run.from.block].cell;
    if (blockIsLeft || place.block == 0) return place;
    return placeOnPage(after, {place.block - 1, kNone});
}

} // namespace quillmere
