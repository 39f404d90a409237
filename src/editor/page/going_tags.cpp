// An element goes when both its tags lie between the places, or when it shows something and all of
// that goes. What shows nothing goes with the element that it lies in, and a list with its last
// option. One end of a group that is shown takes the other one with it. Held by
// delete_edits_test.cpp.

#include "editor/page/going_tags.h"

#include "editor/page/page_places.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

/// Elements that stay however empty they are, unless they lie between the places.
bool isFrame(Kind kind)
{
    return kind == Kind::Paragraph || kind == Kind::Table || kind == Kind::Row
        || kind == Kind::Cell;
}

bool isMarker(Kind kind)
{
    return kind == Kind::Select || kind == Kind::Option || kind == Kind::Marker;
}

SourceRange contentOfBlocks(const SurfacePage& page, const CoveredRun& run)
{
    return {page.blocks[run.from.block].content.begin, page.blocks[run.to.block].content.end};
}

bool holds(const CoveredRun& run, std::size_t item)
{
    return item != kNone && item >= run.firstItem && item < run.endItem;
}

class GoingElements {
public:
    GoingElements(const SurfacePage& page, const CoveredRun& run)
        : page_(page)
        , run_(run)
        , between_(offsetsOf(page, run))
        , blocks_(contentOfBlocks(page, run))
        , going_(page.elements.size())
    {
    }

    std::vector<bool> take()
    {
        for (std::size_t i = 0; i < going_.size(); ++i)
            going_[i] = liesBetween(page_.elements[i]) || goesEmpty(page_.elements[i]);
        for (const auto block : {run_.from.block, run_.to.block}) {
            const auto paragraph = page_.blocks[block].paragraph;
            if (paragraph != kNone) going_[paragraph] = false;
        }
        for (std::size_t i = 0; i < going_.size(); ++i)
            if (holdsOptions(page_.elements[i]) && losesItsOptions(i)) going_[i] = true;
        takeEmptyOnesWithin();
        return std::move(going_);
    }

private:
    [[nodiscard]] bool liesBetween(const PageElement& element) const
    {
        if (!lies(element.start, between_)) return false;
        if (staysAtBorder(element)) return false;
        if (!element.end.empty() || isFrame(element.kind)) return element.end.end <= between_.end;
        return itemsOf(page_, element).within(run_); // a format that nothing closes
    }

    /// Where nothing is lost, markers that show nothing, as a do block, only go from between items.
    [[nodiscard]] bool staysAtBorder(const PageElement& element) const
    {
        if (!page_.rules.losesNothing() || element.kind != Kind::Marker) return false;
        const auto items = itemsOf(page_, element);
        const bool isShown = !items.empty() || itemOf(page_, element.start) != kNone;
        return !isShown && (items.first <= run_.firstItem || items.first >= run_.endItem);
    }

    [[nodiscard]] bool goesEmpty(const PageElement& element) const
    {
        if (isFrame(element.kind)) return false;
        if (holdsMarkerOf(page_, run_, element)) return true;
        const auto items = itemsOf(page_, element);
        if (items.empty() || !items.within(run_)) return false;
        if (element.kind == Kind::Option) return true;
        return lies(element.start, blocks_) && (element.end.empty() || lies(element.end, blocks_));
    }

    [[nodiscard]] bool holdsOptions(const PageElement& element) const
    {
        if (element.kind == Kind::Select) return true;
        return element.kind == Kind::Marker && itemOf(page_, element.start) != kNone;
    }

    [[nodiscard]] bool losesItsOptions(std::size_t list) const
    {
        bool loses = false;
        for (std::size_t i = list + 1; i < going_.size(); ++i) {
            const auto& element = page_.elements[i];
            if (element.start.begin >= page_.elements[list].end.begin) break;
            if (element.kind != Kind::Option) continue;
            if (!going_[i]) return false;
            loses = true;
        }
        return loses;
    }

    /// Formats without text go with a format round them; within a marker that goes, all goes.
    void takeEmptyOnesWithin()
    {
        std::size_t formatsGoTo = 0;
        std::size_t markersGoTo = 0;
        for (std::size_t i = 0; i < going_.size(); ++i) {
            const auto& element = page_.elements[i];
            if (isFrame(element.kind) || element.end.empty()) continue;
            const auto goesTo
                = isMarker(element.kind) ? markersGoTo : std::max(formatsGoTo, markersGoTo);
            if (element.end.end <= goesTo && itemsOf(page_, element).empty()) going_[i] = true;
            auto& furthest = isMarker(element.kind) ? markersGoTo : formatsGoTo;
            if (going_[i] && !losesItsMarker(page_, run_, element))
                furthest = std::max(furthest, element.end.end);
        }
    }

    const SurfacePage& page_;
    const CoveredRun& run_;
    SourceRange between_;
    SourceRange blocks_;
    std::vector<bool> going_;
};

void growTo(CoveredRun& run, ItemSpan items)
{
    if (items.first < run.firstItem) {
        run.from.offset -= run.firstItem - items.first;
        run.firstItem = items.first;
    }
    if (items.end > run.endItem) {
        run.to.offset += items.end - run.endItem;
        run.endItem = items.end;
    }
}

} // namespace

ItemSpan itemsOf(const SurfacePage& page, const PageElement& element)
{
    const auto indexFrom = [&page](std::size_t offset) {
        const auto found = std::ranges::lower_bound(
            page.items, offset, {}, [](const PageItem& item) { return item.source.begin; });
        return static_cast<std::size_t>(found - page.items.begin());
    };
    const auto first = indexFrom(element.start.end);
    return {first, std::max(first, indexFrom(element.end.begin))};
}

CoveredRun withWholeOptions(const SurfacePage& page, CoveredRun run)
{
    const auto blocks = contentOfBlocks(page, run);
    const CoveredRun marked = run;
    for (std::size_t i = marked.firstItem; i < marked.endItem; ++i) {
        if (page.items[i].kind != ItemKind::Radio) continue;
        const auto option
            = innermostElement(page, page.items[i].source.begin, PageElement::Kind::Option);
        if (option == kNone || !lies(page.elements[option].whole(), blocks)) continue;
        growTo(run, itemsOf(page, page.elements[option]));
    }
    return run;
}

SourceRange offsetsOf(const SurfacePage& page, const CoveredRun& run)
{
    SourceRange between{offsetAt(page, run.from), offsetAt(page, run.to)};
    if (run.firstItem == run.endItem) return between;
    between.begin = std::min(between.begin, page.items[run.firstItem].source.begin);
    between.end = std::max(between.end, page.items[run.endItem - 1].source.end);
    return between;
}

bool holdsMarkerOf(const SurfacePage& page, const CoveredRun& run, const PageElement& element)
{
    if (!page.rules.losesNothing() || element.kind != Kind::Marker) return false;
    return holds(run, itemOf(page, element.start)) || holds(run, itemOf(page, element.end));
}

bool losesItsMarker(const SurfacePage& page, const CoveredRun& run, const PageElement& element)
{
    return holdsMarkerOf(page, run, element) && !itemsOf(page, element).within(run);
}

std::vector<std::size_t> goingItemsOutside(
    const SurfacePage& page, const CoveredRun& run, const std::vector<bool>& going)
{
    std::vector<std::size_t> items;
    if (!page.rules.losesNothing()) return items;
    for (std::size_t i = 0; i < going.size(); ++i) {
        const auto& element = page.elements[i];
        if (!going[i] || element.kind != Kind::Marker) continue;
        for (const auto item : {itemOf(page, element.start), itemOf(page, element.end)})
            if (item != kNone && !holds(run, item)) items.push_back(item);
    }
    std::ranges::sort(items);
    return items;
}

std::vector<bool> goingElements(const SurfacePage& page, const CoveredRun& run)
{
    return GoingElements(page, run).take();
}

SourceRange withGoingMarkers(const SurfacePage& page, const CoveredRun& run,
    const std::vector<bool>& going, SourceRange between)
{
    for (std::size_t i = 0; i < going.size(); ++i) {
        const auto& element = page.elements[i];
        if (!going[i] || !isMarker(element.kind)) continue;
        if (!itemsOf(page, element).within(run)) continue; // a list that goes on without options
        between.begin = std::min(between.begin, element.start.begin);
        between.end = std::max(between.end, element.end.end);
    }
    return between;
}

std::size_t parentOf(const SurfacePage& page, const std::vector<bool>& going, std::size_t offset)
{
    std::size_t parent = kNone;
    for (std::size_t i = 0; i < page.elements.size(); ++i) {
        const auto& element = page.elements[i];
        if (element.start.begin >= offset) break;
        if (going[i] || element.start.begin < page.content.begin) continue;
        if (offset >= element.start.end && offset < element.end.begin) parent = i;
    }
    return parent;
}

std::string endTagFor(std::string_view startTag)
{
    const auto end = startTag.find_first_of(" \t\r\n/>", 1);
    return "</" + std::string(startTag.substr(1, end - 1)) + ">";
}

} // namespace quillmere
