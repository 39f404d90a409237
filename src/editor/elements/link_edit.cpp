// Held by link_edit_test.cpp.

#include "editor/elements/link_edit.h"

#include "document/text/text_search.h"
#include "editor/elements/format_tags.h"
#include "editor/elements/typed_values.h"
#include "editor/page/attribute_values.h"
#include "editor/page/hit_test.h"
#include "editor/page/markup_tags.h"
#include "editor/page/page_places.h"

#include <algorithm>
#include <span>
#include <vector>

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

bool isMarked(const PageItem& item, SourceRange marked)
{
    return item.source.begin < marked.end && item.source.end > marked.begin;
}

std::string startTag(const LinkSettings& link, std::string_view otherAttributes = {})
{
    return std::string("<a href=\"").append(link.target).append("\"").append(otherAttributes) + ">";
}

ElementEdit putIn(std::string_view text, SourceRange piece, const std::string& link)
{
    return {withPiece(text, piece, link), static_cast<int>(piece.begin + link.size())};
}

} // namespace

std::string linkMarkup(const LinkSettings& link)
{
    return startTag(link) + link.caption + "</a>";
}

std::string linkInPlace(std::string_view text, SourceRange marked, const LinkSettings& link)
{
    const auto page = readSurfacePage(std::string(text));
    const auto isWithin = [](const PageItem& item, SourceRange range) {
        return item.source.begin >= range.begin && item.source.end <= range.end;
    };
    std::vector<std::size_t> whole;
    for (std::size_t i = 0; i < page.elements.size(); ++i) {
        const auto& element = page.elements[i];
        const auto holdsTheMarked = [&](const PageItem& item) {
            return isWithin(item, element.whole()) == isMarked(item, marked);
        };
        if (element.kind == PageElement::Kind::Format
            && std::ranges::all_of(page.items, holdsTheMarked))
            whole.push_back(i);
    }
    const auto border = formatBorder(page, whole);
    return border.starts + linkMarkup(link) + border.ends;
}

bool canBecomeLink(std::string_view text, SourceRange marked)
{
    const auto page = readSurfacePage(std::string(text));
    const auto isInMarked = [marked](const PageItem& item) { return isMarked(item, marked); };
    std::size_t blocks = 0;
    for (const auto& block : page.blocks) {
        const auto items = std::span(page.items).subspan(block.firstItem, itemCount(block));
        if (std::ranges::any_of(items, isInMarked)) ++blocks;
    }
    return blocks == 1 && std::ranges::all_of(page.items, [&](const PageItem& item) {
        const bool isText = item.kind == ItemKind::Character || item.kind == ItemKind::Blank;
        return !isInMarked(item) || (isText && page.styles[item.style].link == kNone);
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
    const auto inner = SourceRange{old->startTag.end, old->captionEnd}.in(text);
    const bool isKept = typedFrom(textOutsideTags(inner)) == typedFrom(wanted.caption);
    const auto tag = startTag(wanted, otherAttributes(old->startTag.in(text), {"href"}));
    return putIn(text, {old->startTag.begin, old->end},
        tag + (isKept ? std::string(inner) : wanted.caption) + "</a>");
}

ElementEdit DeleteLink(std::string_view text, int position)
{
    const auto link = linkFrom(text, searchOffset(position));
    if (!link) return unchanged(text, position);
    return {withPiece(text, {link->startTag.begin, link->end}, {}),
        static_cast<int>(link->startTag.begin)};
}

} // namespace quillmere
