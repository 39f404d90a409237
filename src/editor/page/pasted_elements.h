#pragma once

#include "document/text/output_rules.h"
#include "document/wml/wml_elements.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Elements that go through the clipboard as text: their markup is put into the text of an area's
// design work file, so that what only WML knows comes along. Positions are those of hit_test.h.

namespace quillmere {

/// The elements that are copied and pasted as a whole.
enum class ElementKind { Option, Link, Table, Image };

/// How an element begins and how its end tag does. A picture ends with its tag.
struct ElementTags {
    ElementKind kind = ElementKind::Option;
    WmlElement element = WmlElement::Select; ///< that is put into text
    std::string_view start;
    std::string_view end;
};

/// In the order in which a marked element is looked for.
inline constexpr ElementTags kElementTags[] = {
    {ElementKind::Option, WmlElement::Select, "<!--option", "<!--/option"},
    {ElementKind::Link, WmlElement::Link, "<a", "</a"},
    {ElementKind::Table, WmlElement::Table, "<table", "</table"},
    {ElementKind::Image, WmlElement::Image, "<img", ""},
};
[[nodiscard]] const ElementTags& tagsOf(ElementKind kind);

/// The markup of the element at `position`, from its start tag to the '>' of its end tag, or of the
/// start tag where the kind has no end. Up to the text's end where that is missing.
[[nodiscard]] std::string elementMarkup(
    std::string_view design, int position, const ElementTags& tags);

/// Which element a text is. All of "<a" and "</a" in it make it a link, and so on; the first that
/// fits in the order option, link, table, picture. nullopt for any other text.
[[nodiscard]] std::optional<ElementKind> elementIn(std::string_view clip);

/// The first double-quoted value behind "src"; "" where there is none.
[[nodiscard]] std::string pictureSource(std::string_view clip);

/// A design text with an element put in.
struct ElementPaste {
    std::string design;
    std::size_t end = 0; ///< offset behind what was put in
    /// IsInsideTable is asked for this position, for its message; 0: it is not asked.
    int tableTestAt = 0;
};

/// Puts the element `clip` into the text at the place that a hit test for options told, or behind
/// it, where nothing is broken. A position outside of the text means the place behind the card's
/// marker. An option goes into the list of the area: ahead of all others, behind the option at the
/// position, or at the list's end, wherever that position lies; without a list it gets one.
/// Throws Overflow for a result of more characters than the rules allow.
[[nodiscard]] ElementPaste pasteElement(std::string_view design, int position,
    std::string_view clip, ElementKind kind, const OutputRules& rules = OutputRules());

} // namespace quillmere
