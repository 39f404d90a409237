// Held by page_places_test.cpp.

#include "editor/page/page_places.h"

#include <algorithm>

namespace quillmere {

PagePlace firstPlace(const SurfacePage&)
{
    return {};
}

PagePlace lastPlace(const SurfacePage& page)
{
    return {page.blocks.size() - 1, itemCount(page.blocks.back())};
}

const PageItem* itemBehind(const SurfacePage& page, PagePlace place)
{
    const auto& block = page.blocks[place.block];
    if (place.offset >= itemCount(block)) return nullptr;
    return &page.items[block.firstItem + place.offset];
}

const PageItem* itemAhead(const SurfacePage& page, PagePlace place)
{
    if (place.offset == 0) return nullptr;
    return itemBehind(page, {place.block, place.offset - 1});
}

std::size_t offsetInJoinedLines(std::string_view text, std::size_t offset)
{
    const auto ahead = text.substr(0, offset);
    const auto lineEnds
        = std::ranges::count_if(ahead, [](char c) { return c == '\r' || c == '\n'; });
    return offset - static_cast<std::size_t>(lineEnds);
}

} // namespace quillmere
