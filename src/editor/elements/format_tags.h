#pragma once

#include "document/text/limits.h"
#include "editor/page/surface_page.h"

#include <array>
#include <cstddef>
#include <set>
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

/// The start tag of each flag with its attributes, in the order of the tags; "" for a plain one.
using FormatStarts = std::array<std::string_view, 7>;

/// Appends the start tags as GetInsertTextFormatTags does, with their attributes. Of those that
/// were `written` before the id is left out, since no two elements have the same.
void appendStartTags(const FormatFlags& flags, const FormatStarts& starts, std::string& tags,
    std::set<const char*>& written);

/// Adds the format that the start tag of an element is; false where it is none. A tag with
/// attributes goes into `starts`, if given.
bool addFormat(FormatFlags& flags, std::string_view startTag, FormatStarts* starts = nullptr);

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

/// Cuts out the pairs of big, small, i, b and u that enclose nothing but tags and blanks, until
/// none is left. A picture is no text. Throws Overflow for a text beyond `limit` characters.
void DeleteFormatTagsWhoArroundsNoText(std::string& Text, std::size_t limit = kMaxTextLength);

} // namespace quillmere
