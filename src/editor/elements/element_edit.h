#pragma once

#include "document/text/output_rules.h"
#include "document/wml/wml_elements.h"
#include "editor/page/surface_page.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Edits of the elements of an area: its design text in, the changed text out. Positions are told as
// the hit test tells them: 1-based, 16 bits; what goes in "behind" position n has n characters
// ahead of it. `rules` are those of the deck: by the default an edit writes what this program has
// always written; where nothing is lost it writes what a person would who writes the deck by hand.
// All edits throw Overflow for a text that would be longer than the rules have it.

namespace quillmere {

struct ElementEdit {
    std::string text;
    int position = 0; ///< behind it the caret stands afterwards
};

/// The text with `inserted` in the place of a piece of it. Throws Overflow.
[[nodiscard]] std::string withPiece(
    std::string_view text, SourceRange piece, std::string_view inserted, const OutputRules& rules);

/// The innermost element that is no format and holds a range of a page; Card outside of all.
[[nodiscard]] WmlElement elementAround(const SurfacePage& page, SourceRange range);

/// What an element goes in with at an offset of a page: where nothing is lost, a paragraph if it
/// would stand in a card itself, unless it joins text that has none either.
struct NeededParagraph {
    std::string_view start;
    std::string_view end;
};
[[nodiscard]] NeededParagraph neededParagraphAt(const SurfacePage& page, std::size_t offset);

/// The edit that changes nothing.
[[nodiscard]] ElementEdit unchanged(std::string_view text, int position);

/// Where a search from a position begins.
[[nodiscard]] std::size_t searchOffset(int position);

/// The first tag at or behind `from` that begins with `key` (lower case, ignoring case), through
/// its '>'; nullopt where there is none.
[[nodiscard]] std::optional<SourceRange> findTagFrom(
    std::string_view text, std::string_view key, std::size_t from);

/// What stands outside of tags and comments.
[[nodiscard]] std::string textOutsideTags(std::string_view markup);

} // namespace quillmere
