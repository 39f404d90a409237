#pragma once

#include <optional>
#include <string_view>

namespace quillmere {

/// What an <img> tells of its picture. Views of the tag, entities as written.
struct PictureTag {
    std::string_view path; ///< as written, without "file://"
    std::string_view alternativeText;
    std::optional<int> widthPx; ///< from the style, else from the attribute; above 0
    std::optional<int> heightPx;
    int horizontalSpacePx = 0; ///< left and right of it
    int verticalSpacePx = 0; ///< above and below it
};

/// Reads an <img> tag. Numbers that are none, or beyond 4096, are taken as not there.
[[nodiscard]] PictureTag readPictureTag(std::string_view tag);

} // namespace quillmere
