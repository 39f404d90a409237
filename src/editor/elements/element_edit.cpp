// Held by the tests of the edits that stand on it.

#include "editor/elements/element_edit.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "editor/page/markup_tags.h"
#include "editor/page/page_places.h"

#include <algorithm>

namespace quillmere {

std::string withPiece(
    std::string_view text, SourceRange piece, std::string_view inserted, const OutputRules& rules)
{
    Rewriter result(text);
    result.drop(piece.begin, piece.end);
    result.insert(piece.end, inserted);
    auto changed = result.take();
    requireAddressable(changed, rules.maxTextLength());
    return changed;
}

WmlElement elementAround(const SurfacePage& page, SourceRange range)
{
    auto innermost = WmlElement::Card;
    for (const auto& element : page.elements) { // by their start
        const bool isAround = element.start.end <= range.begin && element.end.begin >= range.end;
        if (isAround && element.kind != PageElement::Kind::Format)
            innermost = wmlElement(tagName(element.start.in(page.text)));
    }
    return innermost;
}

NeededParagraph neededParagraphAt(const SurfacePage& page, std::size_t offset)
{
    const auto isInCard
        = [&page](SourceRange range) { return elementAround(page, range) == WmlElement::Card; };
    if (!page.rules.losesNothing() || !isInCard({offset, offset})) return {};
    const auto place = placeAt(page, offset);
    for (const auto* item : {itemAhead(page, place), itemBehind(page, place)})
        if (item != nullptr && item->kind != ItemKind::Chip && isInCard(item->source)) return {};
    return {"<p>", "</p>"};
}

ElementEdit unchanged(std::string_view text, int position)
{
    return {std::string(text), position};
}

std::size_t searchOffset(int position)
{
    return static_cast<std::size_t>(std::max(position - 1, 0));
}

std::optional<SourceRange> findTagFrom(
    std::string_view text, std::string_view key, std::size_t from)
{
    const auto begin = findIgnoringCase(text, key, from);
    const auto end = begin == npos ? npos : text.find('>', begin);
    if (end == npos) return std::nullopt;
    return SourceRange{begin, end + 1};
}

std::string textOutsideTags(std::string_view markup)
{
    std::string result;
    std::size_t passed = 0;
    MarkupScanner tags(markup);
    while (const auto tag = tags.next()) {
        result.append(markup, passed, tag->source.begin - passed);
        passed = tag->source.end;
    }
    return result.append(markup.substr(passed));
}

} // namespace quillmere
