#pragma once

#include "editor/page/surface_page.h"

#include <optional>
#include <string>
#include <string_view>

// Bold, italic, underlined and the size of letters, as tags around what is marked in a design text.

namespace quillmere {

enum class LetterSize { Normal, Big, Small };

/// The formats of what is marked, or those that are wanted for it. nullopt: some of it has the
/// format and some has not; or the format is to stay as it is.
struct TextFormats {
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underlined;
    std::optional<LetterSize> size;
    friend bool operator==(const TextFormats&, const TextFormats&) = default;
};

/// The formats of all that is marked. strong counts as bold, em as italic. Blanks do not count,
/// unless there is nothing else.
[[nodiscard]] TextFormats formatsOf(
    std::string_view text, SourceRange marked, const OutputRules& rules = OutputRules());

/// Whether nothing of what is marked can have a format: it holds no text, or lies in a selection
/// list, whose entries have no formats in WML.
[[nodiscard]] bool takesNoFormats(
    std::string_view text, SourceRange marked, const OutputRules& rules = OutputRules());

struct FormattedText {
    std::string text;
    SourceRange marked; ///< what was marked, in it
};

/// Gives what is marked the formats. All tags come out nested, in the order big, small, em, i,
/// strong, b, u from the outermost to the innermost, and none goes over the border of a paragraph,
/// cell, list or marker, whatever stood there before: tags of formats that lie in part within what
/// is marked are written anew. A link is a unit, with the tags round it. Text in selection lists
/// gets no format. Pairs that hold no text go, in all of the text; where nothing is lost they stay,
/// atoms that no format may hold are left out of them, preformatted text keeps its size, and tags
/// that are written anew keep their attributes.
/// A blank has the formats of what follows it, so that the tag stands ahead of it, as in
/// "one<b> two</b> three": saving takes blanks away that stand directly ahead of a tag.
/// Throws Overflow, and RuntimeFailure where a stray '<' keeps tags from being written anew.
[[nodiscard]] FormattedText formatText(std::string_view text, SourceRange marked,
    const TextFormats& wanted, const OutputRules& rules = OutputRules());

} // namespace quillmere
