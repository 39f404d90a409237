#pragma once

#include "editor/elements/element_edit.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

struct ImageSettings {
    std::string source; ///< path of the display copy
    std::string caption; ///< alternative text, as it stands between the quotes
    bool hasLayout = false; ///< alignment and size stand in the tag
    std::string align = "top"; ///< top, middle, bottom
    std::string height; ///< in pixels; "" where the tag tells none
    std::string width;
};

/// The alignment by its place in the list, and back; what is none of them is the first.
[[nodiscard]] std::string_view imageAlign(int index);
[[nodiscard]] int imageAlignIndex(std::string_view align);

/// The position less 1 of the first picture at or behind `from` (0: in the text); nullopt where
/// there is none.
[[nodiscard]] std::optional<int> FindImage(std::string_view text, int from = 0);

/// The first picture at or behind the position, a "file://" ahead of its path dropped. Size and
/// layout are told where its style names a height or width. nullopt where there is no picture.
[[nodiscard]] std::optional<ImageSettings> GetImage(std::string_view text, int position);

/// The same for the way that older files write the size: height="20" width="30", and left, center
/// and right for top, middle and bottom.
[[nodiscard]] std::optional<ImageSettings> löschen_GetImage(std::string_view text, int position);

/// Puts a picture in behind the first valid place at the position. The caret stands behind it.
[[nodiscard]] ElementEdit SetImage(std::string_view text, int position, const ImageSettings& wanted,
    const OutputRules& rules = OutputRules());

/// Makes the first picture at or behind the position what is wanted, in its place. Where nothing is
/// lost its other attributes stay, and it gets no alignment that its dialog only shows; by the
/// default the tag is a new one. Without a picture the text stays as it is.
[[nodiscard]] ElementEdit ReplaceImage(std::string_view text, int position,
    const ImageSettings& wanted, const OutputRules& rules = OutputRules());

/// Takes out the first picture at or behind the position, with an end tag that follows it at once.
[[nodiscard]] ElementEdit DeleteImage(
    std::string_view text, int position, const OutputRules& rules = OutputRules());

} // namespace quillmere
