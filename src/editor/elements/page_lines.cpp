// Held by paragraph_alignment_test.cpp.

#include "editor/elements/page_lines.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

/// What is inside of links, lists and blocks of markers, which no line border parts.
class HeldTogether {
public:
    explicit HeldTogether(const SurfacePage& page)
    {
        for (const auto& element : page.elements) // by their start
            if (!mayHoldBreaks(page, element)) add({element.start.end, element.end.begin});
    }
    [[nodiscard]] bool holds(SourceRange between) const
    {
        const auto behind
            = std::ranges::upper_bound(inner_, between.begin, {}, &SourceRange::begin);
        return behind != inner_.begin() && std::prev(behind)->end >= between.end;
    }

private:
    static bool mayHoldBreaks(const SurfacePage& page, const PageElement& element)
    {
        return element.kind == Kind::Format || element.kind == Kind::Paragraph
            || element.start.begin < page.content.begin;
    }
    void add(SourceRange inner)
    {
        const auto furthest = inner_.empty() ? 0 : inner_.back().end;
        inner_.push_back({inner.begin, std::max(inner.end, furthest)});
    }

    std::vector<SourceRange> inner_; // by their begin, each to the furthest end so far
};

class LineReader {
public:
    explicit LineReader(const SurfacePage& page)
        : page_(page)
        , elements_(page)
    {
    }

    std::vector<PageLine> read()
    {
        for (std::size_t i = 0; i < page_.blocks.size(); ++i) {
            if (page_.blocks[i].cell != kNone) continue;
            const bool isBesideTable
                = std::ranges::any_of(page_.tables, [i](const PageTable& table) {
                      return table.blockAhead == i || table.blockBehind == i;
                  });
            if (itemCount(page_.blocks[i]) > 0 || !isBesideTable) addBlock(page_.blocks[i]);
        }
        addTables();
        std::ranges::stable_sort(
            lines_, {}, [](const PageLine& line) { return line.source.begin; });
        if (page_.rules.losesNothing()) joinWithinElements();
        return std::move(lines_);
    }

private:
    void addBlock(const PageBlock& block)
    {
        const bool mayAlign = !block.isAside && !isPreformatted(page_, block);
        auto begin = block.content.begin;
        for (auto item = block.firstItem; item < block.endItem; ++item) {
            const auto source = page_.items[item].source;
            if (page_.items[item].kind != ItemKind::LineBreak || elements_.holds(source)) continue;
            lines_.push_back(
                {{begin, source.begin}, block.paragraph, block.alignment, false, mayAlign});
            begin = source.end;
        }
        lines_.push_back(
            {{begin, block.content.end}, block.paragraph, block.alignment, false, mayAlign});
    }

    void addTables()
    {
        for (const auto& table : page_.tables) {
            if (table.outerCell != kNone) continue;
            const auto& ahead = page_.blocks[table.blockAhead];
            const auto& behind = page_.blocks[table.blockBehind];
            const bool isInParagraph = ahead.paragraph == behind.paragraph;
            lines_.push_back(
                {table.source, isInParagraph ? ahead.paragraph : kNone, ahead.alignment, true});
        }
    }

    /// A table ends a line wherever it stands, but it does not part what belongs together.
    void joinWithinElements()
    {
        std::vector<PageLine> joined;
        for (const auto& line : lines_) {
            const bool isSecond = !joined.empty() && joined.back().paragraph == line.paragraph
                && elements_.holds({joined.back().source.end, line.source.begin});
            if (isSecond) {
                joined.back().source.end = line.source.end;
                joined.back().isTable = false;
            } else {
                joined.push_back(line);
            }
        }
        lines_ = std::move(joined);
    }

    const SurfacePage& page_;
    HeldTogether elements_;
    std::vector<PageLine> lines_;
};

} // namespace

std::vector<PageLine> pageLines(const SurfacePage& page)
{
    return LineReader(page).read();
}

} // namespace quillmere
