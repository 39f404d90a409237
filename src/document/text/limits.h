#pragma once

#include "document/text/failure.h"

#include <cstddef>
#include <string_view>

namespace quillmere {

/// Positions in document text are 16 bits signed.
inline constexpr std::size_t kMaxTextLength = 32767;

/// Throws Overflow where a text of `length` characters is longer than positions can tell.
inline void requireAddressableLength(std::size_t length)
{
    if (length > kMaxTextLength) throw Overflow();
}

/// The same for a text.
inline void requireAddressable(std::string_view text)
{
    requireAddressableLength(text.size());
}

} // namespace quillmere
