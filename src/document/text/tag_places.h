#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

// Where tags stand in a text. Tags are given as keys in lower case that begin with '<' and have no
// other '<', such as "<b>" or "<select"; searches ignore case. Texts are no longer than positions
// can tell, so that 16 bits hold every offset; what is kept of thousands of tags stays small.

namespace quillmere {

/// A format's two tags, given whole.
struct TagPair {
    std::string_view open;
    std::string_view close;
};

using TagOffset = std::uint16_t;

/// In rising order.
using Places = std::vector<TagOffset>;

struct FoundTag {
    TagOffset offset;
    std::uint16_t key; ///< index of the key that was found
};

/// All tags of the keys in the order of the text, which is read once.
[[nodiscard]] std::vector<FoundTag> findTags(
    std::string_view text, std::span<const std::string_view> keys);

/// The places of each key, in the order of the keys.
[[nodiscard]] std::vector<Places> tagPlaces(
    std::string_view text, std::span<const std::string_view> keys);

/// Whether deleting some of the tags `cut`, which are whole, could join what stands around them to
/// one more of the tags `cut` or `others`, as "<" and "/b>" around a tag. It may be true where no
/// deletion that is really made does so.
[[nodiscard]] bool cutsCanJoin(std::string_view text, std::span<const std::string_view> cut,
    std::span<const std::string_view> others);

} // namespace quillmere
