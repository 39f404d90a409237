// Held by paragraph_alignment_test.cpp.

#include "editor/elements/page_lines.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

/// Whether a line break is part of a link, a list or a block of markers.
bool isWithinElement(const SurfacePage& page, SourceRange lineBreak)
{
    return std::ranges::any_of(page.elements, [&](const PageElement& element) {
        const bool mayHoldBreaks = element.kind == Kind::Format || element.kind == Kind::Paragraph
            || element.start.begin < page.content.begin;
        return !mayHoldBreaks && element.start.end <= lineBreak.begin
            && element.end.begin >= lineBreak.end;
    });
}

class LineReader {
public:
    explicit LineReader(const SurfacePage& page)
        : page_(page)
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
        return lines_;
    }

private:
    void addBlock(const PageBlock& block)
    {
        auto begin = block.content.begin;
        for (auto item = block.firstItem; item < block.endItem; ++item) {
            const auto source = page_.items[item].source;
            if (page_.items[item].kind != ItemKind::LineBreak || isWithinElement(page_, source))
                continue;
            lines_.push_back({{begin, source.begin}, block.paragraph, block.alignment, false});
            begin = source.end;
        }
        lines_.push_back({{begin, block.content.end}, block.paragraph, block.alignment, false});
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

    const SurfacePage& page_;
    std::vector<PageLine> lines_;
};

} // namespace

std::vector<PageLine> pageLines(const SurfacePage& page)
{
    return LineReader(page).read();
}

} // namespace quillmere
