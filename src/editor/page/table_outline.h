#pragma once

#include "editor/page/markup_tags.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace quillmere {

/// Tables deeper than this within each other are chips: each one doubles the time of a text layout.
inline constexpr std::size_t kMaxTableDepth = 4;
/// A table with more rows times columns is chips as well.
inline constexpr std::size_t kMaxTableArea = 2000;

/// The last tag of a table that fits: its </table>, or where that is missing the last </td>, </tr>
/// or the like.
struct TableOutline {
    std::uint32_t lastTag = 0; ///< index in the tags
};

/// Tells the parts of tables that fit from the others: sets `table` of each of their tags. A table
/// fits where it has a cell and nothing but its rows stands between its cells; the ends of cells
/// and rows may be missing ahead of the next cell, the next row and the end of the table. Its own
/// end may be missing as well behind a cell that has one, for only then can text stand behind it.
[[nodiscard]] std::vector<TableOutline> outlineTables(
    std::string_view text, SourceRange content, std::vector<MarkupTag>& tags);

} // namespace quillmere
