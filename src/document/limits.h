#pragma once

#include "document/failure.h"

#include <cstddef>
#include <string_view>

namespace quillmere {

/// Positions in document text are 16 bits signed.
inline constexpr std::size_t kMaxTextLength = 32767;

/// Throws Overflow where `text` is longer than positions can tell.
inline void requireAddressable(std::string_view text)
{
    if (text.size() > kMaxTextLength) throw Overflow();
}

} // namespace quillmere
