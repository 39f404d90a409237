#pragma once

#include "document/wml/token_mends.h"

namespace quillmere::wml {

/// A start or empty tag written anew where it is not well-formed or has known names in wrong case:
/// what is right in it is copied byte for byte.
[[nodiscard]] MendedToken mendedStartTag(const WmlToken& tag, const CharacterMender& characters);

} // namespace quillmere::wml
