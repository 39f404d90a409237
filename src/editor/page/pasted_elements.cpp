// Each rule gives an offset of the text at which the element goes in. Held by
// pasted_elements_test.cpp.

#include "editor/page/pasted_elements.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "editor/page/fitting_markup.h"
#include "editor/page/hit_test.h"
#include "editor/page/splice_list.h"

#include <algorithm>

namespace quillmere {
namespace {

bool holds(std::string_view text, std::string_view key)
{
    return findIgnoringCase(text, key) != npos;
}

/// The offset behind the first '>' at or behind `from`; the text's end where there is none.
std::size_t behindTag(std::string_view text, std::size_t from)
{
    const auto close = text.find('>', from);
    return close == npos ? text.size() : close + 1;
}

std::size_t behindCardMarker(std::string_view design)
{
    const auto card = findIgnoringCase(design, "<!--card");
    return card == npos ? 0 : behindTag(design, card);
}

/// How many characters lie ahead of the place that a hit test told.
std::size_t placeOf(std::string_view design, int position)
{
    const bool isOutside = position < 1 || static_cast<std::size_t>(position) > design.size();
    return isOutside ? behindCardMarker(design) : static_cast<std::size_t>(position) - 1;
}

/// Where a further option goes in; npos where the area has no list of options. Behind the last
/// option of the list no end of an option follows: there it goes to the list's end as well.
std::size_t placeInList(std::string_view design, std::size_t place)
{
    const auto begin = findIgnoringCase(design, "<!--select");
    if (begin == npos || place < begin) return begin == npos ? npos : behindTag(design, begin);
    const auto end = findIgnoringCase(design, "<!--/select");
    if (place > end) return end;
    const auto optionEnd = findIgnoringCase(design, "<!--/option", place);
    return optionEnd == npos ? end : behindTag(design, optionEnd);
}

ElementPaste insertedAt(std::string_view design, std::size_t offset, std::string_view element)
{
    ElementPaste paste;
    paste.design.append(design.substr(0, offset)).append(element).append(design.substr(offset));
    paste.end = offset + element.size();
    return paste;
}

/// The same where nothing is lost: what may not stand there goes elsewhere.
ElementPaste insertedFitting(
    std::string_view design, std::size_t offset, std::string_view clip, const OutputRules& rules)
{
    const auto page = readSurfacePage(std::string(design), rules);
    const auto fitting = fittingMarkup(page, offset, elementsRound(page, offset), clip);
    SpliceList changes;
    auto end = fitting.here.back().offset;
    for (const auto& placed : fitting.elsewhere) {
        changes.insert(placed.offset, placed.markup);
        if (placed.offset <= offset) end += placed.markup.size();
    }
    for (const auto& placed : fitting.here) {
        changes.insert(placed.offset, placed.markup);
        end += placed.markup.size();
    }
    return {spliced(design, std::move(changes).take()), end};
}

ElementPaste inserted(
    std::string_view design, std::size_t offset, std::string_view clip, const OutputRules& rules)
{
    return rules.losesNothing() ? insertedFitting(design, offset, clip, rules)
                                : insertedAt(design, offset, clip);
}

ElementPaste insertedAtValidPosition(std::string_view design, std::size_t place,
    std::string_view element, ElementKind kind, const OutputRules& rules)
{
    const auto valid
        = ValidInsertPosition(static_cast<int>(place), design, tagsOf(kind).element, rules);
    auto paste = inserted(design,
        std::min(static_cast<std::size_t>(std::max(valid, 0)), design.size()), element, rules);
    paste.tableTestAt = std::max(static_cast<int>(place), 1);
    return paste;
}

ElementPaste pasted(std::string_view design, std::size_t place, std::string_view clip,
    ElementKind kind, const OutputRules& rules)
{
    if (kind != ElementKind::Option)
        return insertedAtValidPosition(design, place, clip, kind, rules);
    const auto inList = placeInList(design, place);
    if (inList != npos) return inserted(design, inList, clip, rules);
    const auto list = std::string("<!--select-->").append(clip).append("<!--/select--><br/>");
    return insertedAtValidPosition(design, place, list, kind, rules);
}

} // namespace

const ElementTags& tagsOf(ElementKind kind)
{
    return *std::ranges::find(kElementTags, kind, &ElementTags::kind);
}

std::string elementMarkup(std::string_view design, int position, const ElementTags& tags)
{
    const auto begin = static_cast<std::size_t>(std::max(position, 1)) - 1;
    if (begin >= design.size()) return {};
    const auto last = tags.end.empty() ? begin : findIgnoringCase(design, tags.end, begin);
    return std::string(design.substr(begin, behindTag(design, last) - begin));
}

std::optional<ElementKind> elementIn(std::string_view clip)
{
    for (const auto& tags : kElementTags)
        if (holds(clip, tags.start) && holds(clip, tags.end)) return tags.kind;
    return std::nullopt;
}

std::string pictureSource(std::string_view clip)
{
    const auto name = findIgnoringCase(clip, "src", findIgnoringCase(clip, "<img"));
    const auto open = name == npos ? npos : clip.find('"', name);
    const auto close = open == npos ? npos : clip.find('"', open + 1);
    if (close == npos) return {};
    return std::string(clip.substr(open + 1, close - open - 1));
}

ElementPaste pasteElement(std::string_view design, int position, std::string_view clip,
    ElementKind kind, const OutputRules& rules)
{
    auto paste = pasted(design, placeOf(design, position), clip, kind, rules);
    requireAddressable(paste.design, rules.maxTextLength());
    return paste;
}

} // namespace quillmere
