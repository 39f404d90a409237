#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace quillmere::bench {

/// What an area holds, as ReadDesignText gives it.
enum class AreaShape {
    Page, ///< paragraphs as people write them, with formats, links, lists, tables and pictures
    Table, ///< such a text, and behind it a table of 30 by 10 short cells
    Cells, ///< all in a table of 30 by 10, for cells of up to 90 characters
    Text, ///< one paragraph without any tag in it
    Long, ///< short paragraphs with formats, links, fields and atoms, as many as it takes
};

[[nodiscard]] std::string_view nameOf(AreaShape shape);

/// An area's design text with its frame and option buttons, about `size` characters long
/// and no shorter than its table.
[[nodiscard]] std::string areaOf(AreaShape shape, std::size_t size);

} // namespace quillmere::bench
