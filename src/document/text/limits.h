#pragma once

#include "document/text/failure.h"

#include <cstddef>
#include <string_view>

namespace quillmere {

/// Positions in document text are 16 bits signed.
inline constexpr std::size_t kMaxTextLength = 32767;
/// How long a text may be where nothing is lost: see OutputRules::maxTextLength().
inline constexpr std::size_t kMaxLosslessTextLength = 1048576;

/// Throws Overflow where a text of `length` characters is longer than positions can tell, or than
/// another limit.
inline void requireAddressableLength(std::size_t length, std::size_t limit = kMaxTextLength)
{
    if (length > limit) throw Overflow();
}

/// The same for a text.
inline void requireAddressable(std::string_view text, std::size_t limit = kMaxTextLength)
{
    requireAddressableLength(text.size(), limit);
}

} // namespace quillmere
