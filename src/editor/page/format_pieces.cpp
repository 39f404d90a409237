// Held by delete_edits_test.cpp.

#include "editor/page/format_pieces.h"

#include "editor/page/going_tags.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

bool isTablePart(Kind kind)
{
    return kind == Kind::Table || kind == Kind::Row || kind == Kind::Cell;
}

bool isCut(const PageElement& element, std::size_t cut)
{
    return element.start.end <= cut && element.end.begin >= cut;
}

bool showsSomething(const SurfacePage& page, SourceRange piece)
{
    if (piece.begin >= piece.end) return false;
    const SourceRange begin{piece.begin, piece.begin};
    const SourceRange end{piece.end, piece.end};
    return !itemsOf(page, {Kind::Format, begin, end}).empty();
}

/// The outermost table that is cut and begins or ends in `within`; an empty range for none.
SourceRange cutTable(const SurfacePage& page, SourceRange within, std::size_t cut)
{
    for (const auto& element : page.elements) {
        const bool isInside = element.start.begin >= within.begin || element.end.end <= within.end;
        if (element.kind == Kind::Table && isCut(element, cut) && isInside) return element.whole();
    }
    return {};
}

std::vector<SourceRange> bordersIn(const SurfacePage& page, SourceRange within, std::size_t cut,
    const std::vector<bool>& reformatted)
{
    const auto table = cutTable(page, within, cut);
    std::vector<SourceRange> borders;
    for (std::size_t i = 0; i < page.elements.size(); ++i) {
        const auto& element = page.elements[i];
        const bool isOfTable = isTablePart(element.kind) && element.start.begin >= table.begin
            && element.end.end <= table.end;
        if (reformatted[i] || (!isOfTable && !isCut(element, cut))) continue;
        for (const auto tag : {element.start, element.end})
            if (tag.begin >= within.begin && tag.end <= within.end) borders.push_back(tag);
    }
    std::ranges::sort(borders, {}, &SourceRange::begin);
    return borders;
}

} // namespace

std::vector<SourceRange> formatPieces(const SurfacePage& page, SourceRange within, std::size_t cut,
    const std::vector<bool>& reformatted)
{
    std::vector<SourceRange> pieces;
    std::size_t begin = within.begin;
    const auto add = [&](std::size_t end) {
        if (showsSomething(page, {begin, end})) pieces.push_back({begin, end});
    };
    for (const auto border : bordersIn(page, within, cut, reformatted)) {
        add(border.begin);
        begin = border.end;
    }
    add(within.end);
    return pieces;
}

} // namespace quillmere
