#pragma once

#include <string>
#include <string_view>

// UTF-16 as UTF-8 and back (RFC 2781, RFC 3629). A half of a pair without the other one is spelled
// like a character of three bytes, so that nothing is lost; no such bytes are valid UTF-8.

namespace quillmere {

[[nodiscard]] std::string utf8FromUtf16(std::string_view bytes, bool isBigEndian);
/// The reverse, for UTF-8 of that kind; a byte that belongs to none becomes its own code.
[[nodiscard]] std::string utf16FromUtf8(std::string_view text, bool isBigEndian);

/// A code point of any value up to 0x10FFFF as UTF-8.
void appendSpelled(std::string& text, char32_t point);

struct SpelledPoint {
    std::size_t length = 0; ///< in bytes; 0: not spelled as it should be
    char32_t point = 0;
};
/// The code point at `offset`, which lies within `text`; halves of pairs are one as well.
[[nodiscard]] SpelledPoint spelledPoint(std::string_view text, std::size_t offset);

} // namespace quillmere
