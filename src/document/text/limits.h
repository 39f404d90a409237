#pragma once

#include "document/text/failure.h"

#include <cstddef>
#include <string_view>

namespace quillmere {

/// Positions in document text are 16 bits signed.
inline constexpr std::size_t kMaxTextLength = 32767;
/// Of a deck file where nothing is lost, in bytes. This is the limit that counts.
inline constexpr std::size_t kMaxLosslessDeckLength = 1048576;
/// Of a design text of such a deck. It is longer than its card, since a sign may be a reference
/// there, an option has its button, and a picture a path for its name; so this only keeps texts
/// from growing without end.
inline constexpr std::size_t kMaxLosslessDesignLength = 32 * kMaxLosslessDeckLength;

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

/// Throws DeckTooLong for a deck file that is too long where nothing is lost.
inline void requireDeckLength(std::size_t bytes)
{
    if (bytes > kMaxLosslessDeckLength) throw DeckTooLong();
}

} // namespace quillmere
