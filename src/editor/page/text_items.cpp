// Held by surface_page_test.cpp.

#include "editor/page/text_items.h"

#include "editor/page/character_entities.h"
#include "editor/page/markup_tags.h"

#include <algorithm>

namespace quillmere {

namespace {

std::size_t behindWhite(std::string_view text, std::size_t from, std::size_t end)
{
    while (from < end && isWhite(text[from]))
        ++from;
    return from;
}

PageItem itemAt(std::string_view text, SourceRange rest)
{
    const char first = text[rest.begin];
    if (isWhite(first)) {
        const auto end = behindWhite(text, rest.begin, rest.end);
        return {{rest.begin, end}, u' ', ItemKind::Blank};
    }
    if (first != '&') return {{rest.begin, rest.begin + 1}, shownByte(first)};
    const auto reference = shownReference(rest.in(text));
    return {{rest.begin, rest.begin + reference.length}, reference.shown};
}

} // namespace

bool isLayout(std::string_view white)
{
    return white.find_first_of("\r\n") != kNone;
}

SourceRange withoutLayoutAhead(std::string_view text, SourceRange range)
{
    const auto end = behindWhite(text, range.begin, range.end);
    return isLayout(SourceRange{range.begin, end}.in(text)) ? SourceRange{end, range.end} : range;
}

bool appendText(SurfacePage& page, SourceRange range, std::uint16_t style)
{
    bool hasContent = false;
    while (!range.empty()) {
        PageItem item = itemAt(page.text, range);
        item.style = style;
        hasContent |= item.kind != ItemKind::Blank;
        range.begin = item.source.end;
        page.items.push_back(item);
    }
    return hasContent;
}

} // namespace quillmere
