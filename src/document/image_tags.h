#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The image tags of a design text or a deck, for what needs no more of them than attributes.

namespace quillmere {

/// The image tags of a text, from "<img" through the next '>', in any case and in their order.
/// A "<img" within such a tag begins none of its own. The tags are parts of `text`.
[[nodiscard]] std::vector<std::string_view> imageTags(std::string_view text);

/// The value of an attribute name="value" of a tag. `name` is lower case with its '='. nullopt
/// where it is missing or not closed.
[[nodiscard]] std::optional<std::string_view> quotedAttribute(
    std::string_view tag, std::string_view name);

/// The same, or else the value of name=value, which ends at a blank or with the tag.
[[nodiscard]] std::optional<std::string_view> imageAttribute(
    std::string_view tag, std::string_view name);

/// The text between `name` (lower case) and the next "px", as in "height: 20px"; nullopt where
/// either is missing.
[[nodiscard]] std::optional<std::string_view> pixelsBehind(
    std::string_view tag, std::string_view name);

/// The path of the picture that an image tag of the surface shows, in lower case, without a
/// "file://" ahead of it; "" where it has none.
[[nodiscard]] std::string shownPath(std::string_view tag);

} // namespace quillmere
