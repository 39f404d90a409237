// Held by link_edit_test.cpp.

#include "editor/elements/link_edit.h"

#include "document/text/text_search.h"
#include "editor/page/attribute_values.h"
#include "editor/page/hit_test.h"
#include "editor/page/markup_tags.h"
#include "editor/page/page_places.h"

#include <algorithm>
#include <span>

namespace quillmere {

namespace {

constexpr std::string_view kLink = "<a";
constexpr std::string_view kLinkEnd = "</a";
constexpr std::string_view kLineBreak = "<br/> ";

struct LinkParts {
    SourceRange startTag;
    std::size_t captionEnd = 0;
    std::size_t end = 0;
};

std::optional<LinkParts> linkFrom(std::string_view text, std::size_t from)
{
    const auto start = findTagFrom(text, kLink, from);
    if (!start) return std::nullopt;
    const auto end = findTagFrom(text, kLinkEnd, start->begin);
    if (!end) return LinkParts{*start, start->end, start->end};
    return LinkParts{*start, std::max(end->begin, start->end), end->end};
}

/// The nearest item that is no blank, from a place towards the block's begin or its end; nullptr
/// where there is none.
const PageItem* firmItem(const SurfacePage& page, PagePlace place, bool ahead)
{
    const auto next = [&] { return ahead ? itemAhead(page, place) : itemBehind(page, place); };
    const auto* item = next();
    while (item != nullptr && item->kind == ItemKind::Blank) {
        place.offset = ahead ? place.offset - 1 : place.offset + 1;
        item = next();
    }
    return item;
}

/// Whether the caret at `offset` has its line for itself, with nothing that ends the line.
bool isAloneOnLine(std::string_view text, std::size_t offset)
{
    const auto page = readSurfacePage(std::string(text));
    const auto place = placeAt(page, offset);
    const auto* const ahead = firmItem(page, place, true);
    const bool beginsLine = ahead == nullptr || ahead->kind == ItemKind::LineBreak;
    return beginsLine && firmItem(page, place, false) == nullptr;
}

ElementEdit putIn(std::string_view text, SourceRange piece, const std::string& link)
{
    return {withPiece(text, piece, link), static_cast<int>(piece.begin + link.size())};
}

} // namespace

std::string linkMarkup(const LinkSettings& link)
{
    return "<a href=\"" + link.target + "\">" + link.caption + "</a>";
}

bool canBecomeLink(std::string_view text, SourceRange marked)
{
    const auto page = readSurfacePage(std::string(text));
    const auto isMarked = [marked](const PageItem& item) {
        return item.source.begin < marked.end && item.source.end > marked.begin;
    };
    std::size_t blocks = 0;
    for (const auto& block : page.blocks) {
        const auto items = std::span(page.items).subspan(block.firstItem, itemCount(block));
        if (std::ranges::any_of(items, isMarked)) ++blocks;
    }
    return blocks == 1 && std::ranges::all_of(page.items, [&](const PageItem& item) {
        const bool isText = item.kind == ItemKind::Character || item.kind == ItemKind::Blank;
        return !isMarked(item) || (isText && page.styles[item.style].link == kNone);
    });
}

std::optional<LinkSettings> GetLink(std::string_view text, int position)
{
    const auto link = linkFrom(text, searchOffset(position));
    if (!link) return std::nullopt;
    LinkSettings settings;
    settings.target = findAttribute(link->startTag.in(text), "href").value_or(std::string_view{});
    settings.caption = textOutsideTags(SourceRange{link->startTag.end, link->captionEnd}.in(text));
    return settings;
}

ElementEdit SetLink(std::string_view text, int position, const LinkSettings& wanted)
{
    const auto place = static_cast<std::size_t>(std::max(ValidInsertPosition(position, text), 0));
    auto link = linkMarkup(wanted) + " ";
    if (isAloneOnLine(text, place)) link += kLineBreak;
    return putIn(text, {place, place}, link);
}

ElementEdit ReplaceLink(std::string_view text, int position, const LinkSettings& wanted)
{
    const auto old = linkFrom(text, searchOffset(position));
    if (!old) return unchanged(text, position);
    return putIn(text, {old->startTag.begin, old->end}, linkMarkup(wanted));
}

ElementEdit DeleteLink(std::string_view text, int position)
{
    const auto link = linkFrom(text, searchOffset(position));
    if (!link) return unchanged(text, position);
    return {withPiece(text, {link->startTag.begin, link->end}, {}),
        static_cast<int>(link->startTag.begin)};
}

} // namespace quillmere
