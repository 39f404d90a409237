#pragma once

#include <optional>
#include <string_view>

namespace quillmere {

/// The value of an attribute of a start tag, quoted by " or ' or not at all, entities as written;
/// "" for one without value, nullopt where the tag has none of this name. The first one of a name
/// counts. `name` is lower case; case in the tag does not matter.
[[nodiscard]] std::optional<std::string_view> findAttribute(
    std::string_view tag, std::string_view name);

} // namespace quillmere
