// A format's part ahead of the first place and its part behind the second are put in tags of their
// own. Where a link or a paragraph is cut by a place, such a part ends at its tag and begins again
// behind it: <b>x<a>y[z]</a></b> becomes <b>x</b><a><b>y</b>z</a>. Held by delete_edits_test.cpp.

#include "editor/page/covered_runs.h"
#include "editor/page/format_pieces.h"
#include "editor/page/going_tags.h"
#include "editor/page/markup_tags.h"
#include "editor/page/neighbour_guards.h"
#include "editor/page/page_edits.h"
#include "editor/page/page_places.h"
#include "editor/page/splice_list.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

class FormatRemoval {
public:
    FormatRemoval(const SurfacePage& page, std::size_t firstItem, std::size_t endItem)
        : page_(page)
        , cleared_{page.items[firstItem].source.begin, page.items[endItem - 1].source.end}
        , reformatted_(page.elements.size())
    {
        for (std::size_t i = 0; i < reformatted_.size(); ++i) {
            const auto items = itemsOf(page, page.elements[i]);
            reformatted_[i] = page.elements[i].kind == Kind::Format && items.first < endItem
                && items.end > firstItem;
        }
    }

    SpliceList take()
    {
        for (std::size_t i = 0; i < reformatted_.size(); ++i)
            if (reformatted_[i]) rewrite(page_.elements[i]);
        SpliceList splices;
        std::for_each(ends_.rbegin(), ends_.rend(),
            [&](auto& end) { splices.insert(end.removed.begin, std::move(end.inserted)); });
        for (auto& start : starts_)
            splices.insert(start.removed.begin, std::move(start.inserted));
        for (const auto tag : removed_)
            splices.remove(tag);
        return splices;
    }

private:
    void rewrite(const PageElement& format)
    {
        keepAhead(format);
        keepBehind(format);
    }

    void keepAhead(const PageElement& format)
    {
        const auto pieces
            = formatPieces(page_, {format.start.end, cleared_.begin}, cleared_.begin, reformatted_);
        const bool startStays = !pieces.empty() && pieces.front().begin == format.start.end;
        if (!startStays) removed_.push_back(format.start);
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (i > 0 || !startStays) open(format, pieces[i].begin);
            close(format, pieces[i].end);
        }
    }

    void keepBehind(const PageElement& format)
    {
        const auto pieces
            = formatPieces(page_, {cleared_.end, format.end.begin}, cleared_.end, reformatted_);
        const bool endStays = !pieces.empty() && pieces.back().end == format.end.begin;
        if (!endStays) removed_.push_back(format.end);
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            open(format, pieces[i].begin);
            if (i + 1 < pieces.size() || !endStays) close(format, pieces[i].end);
        }
    }

    void open(const PageElement& format, std::size_t offset)
    {
        starts_.push_back({{offset, offset}, std::string(format.start.in(page_.text))});
    }

    void close(const PageElement& format, std::size_t offset)
    {
        const auto written = format.end.in(page_.text);
        ends_.push_back({{offset, offset},
            written.empty() ? endTagFor(format.start.in(page_.text)) : std::string(written)});
    }

    const SurfacePage& page_;
    SourceRange cleared_;
    std::vector<bool> reformatted_;
    std::vector<Splice> starts_; // in the order of the formats, the outermost first
    std::vector<Splice> ends_;
    std::vector<SourceRange> removed_;
};

bool areAlike(const PageItem& one, const PageItem& other)
{
    return one.kind == other.kind && one.shown == other.shown;
}

/// Keeps items apart that only tags kept apart so far: the blanks of "a <b> b</b>".
void guardBorders(
    SpliceList& changes, const SurfacePage& page, std::size_t firstItem, std::size_t endItem)
{
    for (std::size_t block = 0; block < page.blocks.size(); ++block) {
        const auto first = std::max(firstItem, page.blocks[block].firstItem + 1);
        for (auto i = first; i < page.blocks[block].endItem && i <= endItem; ++i) {
            const auto& ahead = page.items[i - 1];
            if (ahead.source.end == page.items[i].source.begin) continue;
            const PagePlace place{block, i - page.blocks[block].firstItem};
            const bool areBlanks
                = ahead.kind == ItemKind::Blank && page.items[i].kind == ItemKind::Blank;
            addGuard(changes, page, runBetween(page, place, place),
                areBlanks ? Guard::Blanks : Guard::References);
        }
    }
}

/// Where nothing is lost, links are taken whole: WML has no formats in them.
void growToLinks(const SurfacePage& page, std::size_t& first, std::size_t& end)
{
    if (!page.rules.losesNothing()) return;
    const auto linkOf
        = [&page](std::size_t item) { return page.styles[page.items[item].style].link; };
    while (first > 0 && linkOf(first) != kNone && linkOf(first - 1) == linkOf(first))
        --first;
    while (end < page.items.size() && linkOf(end) != kNone && linkOf(end) == linkOf(end - 1))
        ++end;
}

} // namespace

SurfaceEdit removeFormats(const SurfacePage& page, PagePlace from, PagePlace to)
{
    const auto runs = coveredRuns(page, from, to);
    auto first = runs.front().firstItem;
    auto end = runs.back().endItem;
    const PagePlace caret = std::max(placeOnPage(page, from), placeOnPage(page, to));
    if (first >= end) return {{}, offsetAt(page, caret)};
    growToLinks(page, first, end);
    SpliceList changes = FormatRemoval(page, first, end).take();
    SurfaceEdit edit{SpliceList(changes).take()};
    auto after = readSurfacePage(spliced(page.text, edit.splices), page.rules);
    if (!std::ranges::equal(page.items, after.items, areAlike)) {
        guardBorders(changes, page, first, end);
        edit.splices = std::move(changes).take();
        after = readSurfacePage(spliced(page.text, edit.splices), page.rules);
    }
    edit.caret = offsetAt(after, placeOnPage(after, caret));
    return edit;
}

} // namespace quillmere
