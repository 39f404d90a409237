#pragma once

#include "document/text/output_rules.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// The value of an attribute of a start tag, quoted by " or ' or not at all, entities as written;
/// "" for one without value, nullopt where the tag has none of this name. The first one of a name
/// counts. `name` is lower case; case in the tag does not matter.
[[nodiscard]] std::optional<std::string_view> findAttribute(
    std::string_view tag, std::string_view name);

/// The attributes of a start tag or marker but for those of these names (lower case), as written,
/// each with a blank ahead of it.
[[nodiscard]] std::string otherAttributes(
    std::string_view tag, std::initializer_list<std::string_view> names);

/// The start tag of the second half of an element that is cut in two: the same, but where nothing
/// is lost without an id.
[[nodiscard]] std::string secondTag(std::string_view tag, const OutputRules& rules);

/// The path that a picture's source names: what stands behind "file://", or without that all of it.
[[nodiscard]] std::string_view picturePath(std::string_view source);

} // namespace quillmere
