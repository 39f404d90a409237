#pragma once

#include "document/text/limits.h"
#include "editor/page/surface_page.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The tags of formats: big, small, i, b and u, and of older files em and strong.

namespace quillmere {

/// How many of each format enclose something.
struct FormatFlags {
    int big = 0;
    int small = 0;
    int emphasis = 0; ///< em
    int italic = 0;
    int strong = 0;
    int bold = 0;
    int underlined = 0;
    friend bool operator==(const FormatFlags&, const FormatFlags&) = default;
};

/// Appends the start tags of the flags in the order big, small, em, i, strong, b, u, or their end
/// tags in the opposite order, so that the pairs nest.
void GetInsertTextFormatTags(const FormatFlags& Flags, bool ends, std::string& Tags);

/// Adds the format that the start tag of an element is; false where it is none.
bool addFormat(FormatFlags& flags, std::string_view startTag);

/// The formats of a page that are open at an offset, the outermost first, as indices of elements.
[[nodiscard]] std::vector<std::size_t> formatsOpenAt(const SurfacePage& page, std::size_t offset);

/// Their end tags, the innermost first, and their start tags as written, the outermost first; where
/// nothing is lost without an id, since no two elements have the same.
struct FormatBorder {
    std::string ends;
    std::string starts;
};
[[nodiscard]] FormatBorder formatBorder(
    const SurfacePage& page, const std::vector<std::size_t>& formats);

/// The start tag of the second half of an element that is cut in two: the same, but where nothing
/// is lost without an id.
[[nodiscard]] std::string secondTag(std::string_view tag, const OutputRules& rules);

/// Cuts out the pairs of big, small, i, b and u that enclose nothing but tags and blanks, until
/// none is left. A picture is no text. Throws Overflow for a text beyond `limit` characters.
void DeleteFormatTagsWhoArroundsNoText(std::string& Text, std::size_t limit = kMaxTextLength);

} // namespace quillmere
