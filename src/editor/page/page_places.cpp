// What stands between two items of a block is white space of the layout, comments and the tags of
// formats and links; the tags there decide. Blocks do not overlap and their offsets ascend, so that
// places are found by halving. Held by page_places_test.cpp.

#include "editor/page/page_places.h"

#include "editor/page/markup_tags.h"

#include <algorithm>

namespace quillmere {

namespace {

std::size_t behindWhite(std::string_view text, SourceRange range)
{
    const auto piece = range.in(text);
    const auto* const end = std::ranges::find_if_not(piece, isWhite);
    return range.begin + static_cast<std::size_t>(end - piece.begin());
}

/// The place within the format tags that the block begins with.
std::size_t offsetInEmptyBlock(const SurfacePage& page, const PageBlock& block)
{
    std::size_t offset = behindWhite(page.text, block.content);
    MarkupScanner tags(page.text, offset);
    while (const auto tag = tags.next()) {
        const bool isOpenHere = isFormat(tag->name) && tag->name != TagName::Link && !tag->isEnd
            && tag->source.begin == offset && tag->source.end <= block.content.end;
        if (!isOpenHere) break;
        offset = tag->source.end;
    }
    return offset;
}

/// The place ahead of the first item and of all links and comments ahead of it.
std::size_t offsetAtStart(const SurfacePage& page, const PageBlock& block)
{
    const auto item = page.items[block.firstItem].source.begin;
    MarkupScanner tags(page.text, block.content.begin);
    while (const auto tag = tags.next()) {
        if (tag->source.begin >= item) break;
        const bool isLinkStart = tag->name == TagName::Link && !tag->isEnd;
        if (isLinkStart || isComment(tag->name)) return tag->source.begin;
    }
    return item;
}

/// The place behind the link or anchor that ends between `begin` and `end` and stood open at
/// `begin`; `begin` where none does.
std::size_t behindLinkEnd(std::string_view text, TagName link, std::size_t begin, std::size_t end)
{
    std::size_t offset = begin;
    std::size_t open = 0; // links that begin here
    MarkupScanner tags(text.substr(0, end), begin);
    while (const auto tag = tags.next()) {
        if (tag->name != link) continue;
        if (!tag->isEnd)
            ++open;
        else if (open > 0)
            --open;
        else
            offset = tag->source.end;
    }
    return offset;
}

std::size_t offsetBehind(const SurfacePage& page, const PageBlock& block, std::size_t item)
{
    const auto& ahead = page.items[item];
    const auto link = page.styles[ahead.style].link;
    if (link == kNone) return ahead.source.end;
    const bool isAnchor = page.elements[link].kind == PageElement::Kind::Marker;
    const bool isLast = item + 1 == block.endItem;
    const auto limit = isLast ? block.content.end : page.items[item + 1].source.begin;
    return behindLinkEnd(
        page.text, isAnchor ? TagName::Anchor : TagName::Link, ahead.source.end, limit);
}

/// How many of the numbers from 0 up to but not `count` the test holds for; it fails for all behind
/// the first that it fails for.
template <class Test> std::size_t countWhile(std::size_t count, const Test& test)
{
    std::size_t first = 0;
    while (count > 0) {
        const auto half = count / 2;
        const bool holds = test(first + half);
        if (holds) first += half + 1;
        count = holds ? count - half - 1 : half;
    }
    return first;
}

} // namespace

std::size_t offsetAt(const SurfacePage& page, PagePlace place)
{
    const auto& block = page.blocks[place.block];
    const auto items = itemCount(block);
    if (items == 0) return offsetInEmptyBlock(page, block);
    if (place.offset == 0) return offsetAtStart(page, block);
    return offsetBehind(page, block, block.firstItem + std::min(place.offset, items) - 1);
}

PagePlace placeAt(const SurfacePage& page, std::size_t offset)
{
    const auto isReached = [&](PagePlace place) { return offsetAt(page, place) <= offset; };
    const auto blocks = countWhile(page.blocks.size(), [&](std::size_t block) {
        return isReached({block, 0});
    });
    if (blocks == 0) return firstPlace(page);
    const auto block = blocks - 1;
    const auto items = countWhile(itemCount(page.blocks[block]), [&](std::size_t item) {
        return isReached({block, item + 1});
    });
    return {block, items};
}

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

std::size_t itemOf(const SurfacePage& page, SourceRange source)
{
    const auto found = std::ranges::lower_bound(
        page.items, source.begin, {}, [](const PageItem& item) { return item.source.begin; });
    const bool isOne = found != page.items.end() && found->source == source;
    return isOne ? static_cast<std::size_t>(found - page.items.begin()) : kNone;
}

PagePlace placeOfItem(const SurfacePage& page, std::size_t item)
{
    const auto block = countWhile(
        page.blocks.size(), [&](std::size_t index) { return page.blocks[index].endItem <= item; });
    return {block, item - page.blocks[block].firstItem};
}

std::size_t innermostElement(const SurfacePage& page, std::size_t offset, PageElement::Kind kind)
{
    const auto behind = std::ranges::partition_point(
        page.elements, [offset](const PageElement& e) { return e.start.end <= offset; });
    for (auto i = static_cast<std::size_t>(behind - page.elements.begin()); i > 0; --i) {
        const auto& element = page.elements[i - 1];
        if (element.kind == kind && offset <= element.end.begin) return i - 1;
    }
    return kNone;
}

std::size_t offsetInJoinedLines(std::string_view text, std::size_t offset)
{
    const auto ahead = text.substr(0, offset);
    const auto lineEnds
        = std::ranges::count_if(ahead, [](char c) { return c == '\r' || c == '\n'; });
    const auto tag = text.substr(0, text.find_first_of("\r\n")).find('<');
    const auto dropped = tag == std::string_view::npos ? 0 : std::min(tag, offset);
    return offset - dropped - static_cast<std::size_t>(lineEnds);
}

} // namespace quillmere
