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
constexpr std::string_view kLineBreak = "<br/>";

struct LinkParts {
    SourceRange startTag;
    std::size_t captionEnd = 0;
    std::size_t end = 0;
};

std::optional<LinkParts> linkFrom(std::string_view text, std::size_t from, const OutputRules& rules)
{
    auto start = findTagFrom(text, kLink, from);
    if (!start) return std::nullopt;
    const auto end = findTagFrom(text, kLinkEnd, start->begin);
    if (!end) return LinkParts{*start, start->end, start->end};
    for (auto inner = start; rules.losesNothing() && inner && inner->begin < end->begin;
         inner = findTagFrom(text, kLink, inner->end))
        start = inner; // of links in one another it is the innermost that ends there
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

/// Whether a place has its line for itself, with nothing that ends the line.
bool isAloneOnLine(const SurfacePage& page, PagePlace place)
{
    const auto* const ahead = firmItem(page, place, true);
    const bool beginsLine = ahead == nullptr || ahead->kind == ItemKind::LineBreak;
    return beginsLine && firmItem(page, place, false) == nullptr;
}

/// Whether a link and nothing else stands on the line, directly ahead of a place.
bool followsLoneLink(const SurfacePage& page, PagePlace place)
{
    const auto* const behind = firmItem(page, place, false);
    const auto* item = itemAhead(page, place);
    const auto link = item == nullptr ? kNone : page.styles[item->style].link;
    if (link == kNone || (behind != nullptr && behind->kind != ItemKind::LineBreak)) return false;
    for (; item != nullptr && item->kind != ItemKind::LineBreak; item = itemAhead(page, place)) {
        if (page.styles[item->style].link != link) return false;
        --place.offset;
    }
    return true;
}

bool isMarked(const PageItem& item, SourceRange marked)
{
    return item.source.begin < marked.end && item.source.end > marked.begin;
}

/// Whether an element that is no format begins or ends within a range.
bool partsRange(const PageElement& element, SourceRange range)
{
    const bool isAround = element.start.end <= range.begin && element.end.begin >= range.end;
    const bool isApart = element.end.end <= range.begin || element.start.begin >= range.end;
    return element.kind != PageElement::Kind::Format && !isAround && !isApart;
}

/// Whether the rules of WML allow a link round what is marked: in no entry of a list, and not over
/// the end of one.
bool mayHoldLink(const SurfacePage& page, SourceRange marked)
{
    const auto parent = elementAround(page, marked);
    return (parent == WmlElement::Card || mayContain(parent, WmlElement::Link))
        && std::ranges::none_of(page.elements,
            [marked](const PageElement& element) { return partsRange(element, marked); });
}

std::string startTag(const LinkSettings& link, std::string_view otherAttributes = {})
{
    return std::string("<a href=\"").append(link.target).append("\"").append(otherAttributes) + ">";
}

/// A link that takes the place of something, with what is written behind it.
std::string linkMarkup(const LinkSettings& link, const OutputRules& rules)
{
    return startTag(link) + link.caption + (rules.losesNothing() ? "</a>" : "</a> ");
}

/// A link at an offset of a page that has none there, with what belongs round it on its line.
std::string newLink(const SurfacePage& page, std::size_t offset, const LinkSettings& link)
{
    const auto& rules = page.rules;
    const auto place = placeAt(page, offset);
    auto markup = linkMarkup(link, rules);
    if (!rules.losesNothing())
        return isAloneOnLine(page, place) ? markup.append(kLineBreak) + " " : markup;
    return followsLoneLink(page, place) ? std::string(kLineBreak) + markup : markup;
}

ElementEdit putIn(
    std::string_view text, SourceRange piece, const std::string& link, const OutputRules& rules)
{
    return {withPiece(text, piece, link, rules), static_cast<int>(piece.begin + link.size())};
}

ElementEdit putInNew(
    std::string_view text, std::size_t place, const LinkSettings& link, const OutputRules& rules)
{
    const auto page = readSurfacePage(std::string(text), rules);
    const auto [start, end] = neededParagraphAt(page, place);
    const auto markup = std::string(start) + newLink(page, place, link);
    auto edit = putIn(text, {place, place}, markup + std::string(end), rules);
    edit.position -= static_cast<int>(end.size());
    return edit;
}

} // namespace

std::string linkInPlace(
    std::string_view text, SourceRange marked, const LinkSettings& link, const OutputRules& rules)
{
    const auto page = readSurfacePage(std::string(text), rules);
    const auto isWithin = [](const PageItem& item, SourceRange range) {
        return item.source.begin >= range.begin && item.source.end <= range.end;
    };
    std::vector<std::size_t> whole;
    for (std::size_t i = 0; i < page.elements.size(); ++i) {
        const auto& element = page.elements[i];
        const auto holdsTheMarked = [&](const PageItem& item) {
            const bool isMarkedOne = isMarked(item, marked);
            return isWithin(item, element.whole()) == isMarkedOne
                || (isMarkedOne && item.kind == ItemKind::Blank);
        };
        if (element.kind == PageElement::Kind::Format
            && std::ranges::all_of(page.items, holdsTheMarked))
            whole.push_back(i);
    }
    const auto border = formatBorder(page, whole);
    return border.starts + linkMarkup(link, rules) + border.ends;
}

bool canBecomeLink(std::string_view text, SourceRange marked, const OutputRules& rules)
{
    const auto page = readSurfacePage(std::string(text), rules);
    const auto isInMarked = [marked](const PageItem& item) { return isMarked(item, marked); };
    if (rules.losesNothing() && !mayHoldLink(page, marked)) return false;
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

std::optional<LinkSettings> GetLink(std::string_view text, int position, const OutputRules& rules)
{
    const auto link = linkFrom(text, searchOffset(position), rules);
    if (!link) return std::nullopt;
    LinkSettings settings;
    settings.target = findAttribute(link->startTag.in(text), "href").value_or(std::string_view{});
    settings.caption = textOutsideTags(SourceRange{link->startTag.end, link->captionEnd}.in(text));
    return settings;
}

ElementEdit SetLink(
    std::string_view text, int position, const LinkSettings& wanted, const OutputRules& rules)
{
    const auto valid = ValidInsertPosition(position, text, WmlElement::Link, rules);
    return putInNew(text, static_cast<std::size_t>(std::max(valid, 0)), wanted, rules);
}

ElementEdit ReplaceLink(
    std::string_view text, int position, const LinkSettings& wanted, const OutputRules& rules)
{
    const auto old = linkFrom(text, searchOffset(position), rules);
    if (!old) return unchanged(text, position);
    if (!rules.losesNothing()) {
        const auto gone = DeleteLink(text, position, rules);
        return putInNew(gone.text, old->startTag.begin, wanted, rules);
    }
    const auto inner = SourceRange{old->startTag.end, old->captionEnd}.in(text);
    const bool isKept = typedFrom(textOutsideTags(inner)) == typedFrom(wanted.caption);
    const auto tag = startTag(wanted, otherAttributes(old->startTag.in(text), {"href"}));
    return putIn(text, {old->startTag.begin, old->end},
        tag + (isKept ? std::string(inner) : wanted.caption) + "</a>", rules);
}

ElementEdit DeleteLink(std::string_view text, int position, const OutputRules& rules)
{
    const auto link = linkFrom(text, searchOffset(position), rules);
    if (!link) return unchanged(text, position);
    return {withPiece(text, {link->startTag.begin, link->end}, {}, rules),
        static_cast<int>(link->startTag.begin)};
}

} // namespace quillmere
