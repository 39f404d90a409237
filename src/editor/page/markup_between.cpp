// The pieces of the text that are copied are gathered with their offsets and put in order; what has
// to complete them stands ahead and behind. Held by copied_text_test.cpp.

#include "editor/page/covered_runs.h"
#include "editor/page/going_tags.h"
#include "editor/page/markup_tags.h"
#include "editor/page/page_edits.h"
#include "editor/page/page_places.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

constexpr std::string_view kLineBreak = "<br/>";

bool isFormatOrLink(Kind kind)
{
    return kind == Kind::Format || kind == Kind::Link;
}

class RunCopy {
public:
    RunCopy(const SurfacePage& page, const CoveredRun& run)
        : page_(page)
        , run_(withWholeOptions(page, run))
        , between_(offsetsOf(page, run_))
    {
    }

    std::string take()
    {
        copyBorders();
        copyElements();
        copyComments();
        for (std::size_t i = run_.firstItem; i < run_.endItem; ++i)
            if (page_.items[i].kind != ItemKind::Marker) add(page_.items[i].source);
        std::ranges::stable_sort(pieces_, {}, &Piece::offset);
        std::string markup = std::move(ahead_);
        for (const auto& piece : pieces_)
            markup += piece.text;
        std::ranges::reverse(behind_);
        for (const auto& end : behind_)
            markup += end;
        return markup;
    }

private:
    struct Piece {
        std::size_t offset = 0;
        std::string_view text;
    };

    void add(SourceRange source) { pieces_.push_back({source.begin, source.in(page_.text)}); }

    /// Paragraphs come as lines, which can be put in anywhere.
    void copyBorders()
    {
        const auto cell = page_.blocks[run_.from.block].cell;
        for (auto block = run_.from.block + 1; block <= run_.to.block; ++block)
            if (page_.blocks[block - 1].cell == cell && page_.blocks[block].cell == cell)
                pieces_.push_back({page_.blocks[block].content.begin, kLineBreak});
    }

    void copyElements()
    {
        SourceRange table; // the last one that is copied as a whole
        for (const auto& element : page_.elements) {
            const bool isWhole = lies(element.whole(), between_);
            if (element.kind == Kind::Table && isWhole && element.whole().end > table.end)
                table = element.whole();
            const bool isOfTable = isWhole && lies(element.whole(), table);
            if (!isOfTable && !isCopied(element, isWhole)) {
                noteCut(element);
                continue;
            }
            copyStart(element);
            copyEnd(element);
        }
    }

    /// A marker that is not copied; what stands in it and shows nothing means nothing without it.
    void noteCut(const PageElement& element)
    {
        const bool isNoted = page_.rules.losesNothing() && element.kind == Kind::Marker
            && element.start.begin >= page_.content.begin;
        if (isNoted) cut_.push_back(element.whole());
    }

    [[nodiscard]] bool isCopied(const PageElement& element, bool isWhole) const
    {
        if (element.start.begin < page_.content.begin) return false;
        const auto items = itemsOf(page_, element);
        const bool isEmpty = items.first >= run_.endItem || items.end <= run_.firstItem;
        if (isFormatOrLink(element.kind)) return !isEmpty;
        if (element.kind == Kind::Select) return holdsCopiedOption(element);
        if (element.kind != Kind::Option && element.kind != Kind::Marker) return false;
        if (holdsMarkerOf(page_, run_, element)) return true; // it is completed
        return isWhole || (!items.empty() && items.within(run_));
    }

    [[nodiscard]] bool holdsCopiedOption(const PageElement& list) const
    {
        return std::ranges::any_of(page_.elements, [&](const PageElement& option) {
            if (option.kind != Kind::Option || !lies(option.whole(), list.whole())) return false;
            const auto items = itemsOf(page_, option);
            return !items.empty() && items.within(run_);
        });
    }

    void copyStart(const PageElement& element)
    {
        if (element.start.begin >= between_.begin)
            add(element.start);
        else
            ahead_ += element.start.in(page_.text);
    }

    void copyEnd(const PageElement& element)
    {
        if (!element.end.empty() && element.end.end <= between_.end)
            add(element.end);
        else if (!element.end.empty())
            behind_.emplace_back(element.end.in(page_.text));
        else if (isFormatOrLink(element.kind))
            behind_.push_back(endTagFor(element.start.in(page_.text)));
    }

    [[nodiscard]] bool isCopied(const MarkupTag& tag) const
    {
        const bool isSingle = tag.name == TagName::Comment || tag.name == TagName::Atom;
        const auto holds = [&](SourceRange marker) { return lies(tag.source, marker); };
        return isSingle && itemOf(page_, tag.source) == kNone && std::ranges::none_of(cut_, holds);
    }

    void copyComments()
    {
        MarkupScanner tags(std::string_view(page_.text).substr(0, between_.end), between_.begin);
        while (const auto tag = tags.next())
            if (isCopied(*tag)) add(tag->source);
    }

    const SurfacePage& page_;
    CoveredRun run_;
    SourceRange between_;
    std::string ahead_;
    std::vector<std::string> behind_; // the innermost last
    std::vector<Piece> pieces_;
    std::vector<SourceRange> cut_; // markers that are not copied
};

std::size_t cellOf(const SurfacePage& page, const CoveredRun& run)
{
    return page.blocks[run.from.block].cell;
}

/// The cells of a row come behind each other, rows below each other.
std::string_view separatorOf(const SurfacePage& page, std::size_t cell, std::size_t next)
{
    const bool areCells = cell != kNone && next != kNone;
    const bool isRow = areCells && page.cells[cell].table == page.cells[next].table
        && page.cells[cell].row == page.cells[next].row;
    return isRow ? std::string_view(" ") : kLineBreak;
}

} // namespace

std::string markupBetween(const SurfacePage& page, PagePlace from, PagePlace to)
{
    std::string markup;
    const auto runs = coveredRuns(page, from, to);
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (i > 0) markup += separatorOf(page, cellOf(page, runs[i - 1]), cellOf(page, runs[i]));
        if (runs[i].from != runs[i].to) markup += RunCopy(page, runs[i]).take();
    }
    return markup;
}

} // namespace quillmere
