// Elements are found by the place that the surface tells of them, which is exact also where the
// same picture stands several times, and not by comparing names. Held by hit_test_test.cpp.

#include "editor/page/hit_test.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"

#include <algorithm>

namespace quillmere {

namespace {

using Element = SurfaceSelection::Element;

struct MarkableKind {
    std::string_view tag;
    std::string_view startTag;
    std::string_view endTag;
    bool isObject; ///< selected as a whole; a link is text
    bool endIsLowerCase; ///< another case does not count
};

constexpr MarkableKind kMarkableKinds[] = {
    {"img", "<img", "</img", true, true},
    {"table", "<table", "</table", true, false},
    // In the text an option ends with a marker, "<!--/option", so that the button is all there is
    // but in files that someone wrote with tags.
    {"input", "<input", "</option", true, false},
    {"a", "<a", "</a", false, false},
};

const MarkableKind* kindOf(const std::optional<Element>& element)
{
    if (!element) return nullptr;
    const auto* const kind = std::ranges::find(kMarkableKinds, element->tag, &MarkableKind::tag);
    return kind == std::end(kMarkableKinds) ? nullptr : kind;
}

/// The '>' of the end tag that follows `startEnd`, or of the start tag where none does.
std::size_t lastCharacter(std::string_view text, std::size_t startEnd, const MarkableKind& kind)
{
    const auto end = kind.endIsLowerCase ? text.find(kind.endTag, startEnd)
                                         : findIgnoringCase(text, kind.endTag, startEnd);
    if (end == npos) return startEnd;
    const auto bracket = text.find('>', end);
    return bracket == npos ? end : bracket;
}

std::optional<MarkedRange> rangeOf(
    std::string_view text, const Element& element, const MarkableKind& kind)
{
    const auto begin = element.source.begin;
    if (!standsAt(text, begin, kind.startTag)) return std::nullopt;
    const auto startEnd = text.find('>', begin);
    if (startEnd == npos) return std::nullopt;
    MarkedRange range;
    range.Start = static_cast<int>(begin) + 1;
    range.End = static_cast<int>(lastCharacter(text, startEnd, kind)) + 1;
    range.IsElement = true;
    range.IsImage = kind.tag == "img";
    return range;
}

std::optional<MarkedRange> rangeOfText(std::string_view text, const SourceRange& marked)
{
    if (marked.begin > marked.end || marked.end > text.size()) return std::nullopt;
    MarkedRange range;
    range.Start = static_cast<int>(marked.begin) + 1;
    range.End = static_cast<int>(marked.end);
    return range;
}

} // namespace

std::optional<MarkedRange> FindMarkedRange(std::string_view text, const SurfaceSelection& selection)
{
    requireAddressable(text, selection.limit);
    const bool isObject
        = selection.objectSelected || selection.type == SurfaceSelection::Type::Control;
    if (const auto* const kind = kindOf(selection.event); kind && kind->isObject == isObject)
        return rangeOf(text, *selection.event, *kind);
    if (!isObject) return rangeOfText(text, selection.marked);
    const auto* const kind = kindOf(selection.control);
    return kind ? rangeOf(text, *selection.control, *kind) : std::nullopt;
}

} // namespace quillmere
