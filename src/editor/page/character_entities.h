#pragma once

#include <cstddef>
#include <string_view>

namespace quillmere {

/// Stands for a character that the surface cannot draw: a control, one beyond the first 65536, or
/// one that means something to a text document.
inline constexpr char16_t kUnknownCharacter = u'\u25A1';

/// A character as the surface draws it, and the length of what stands for it in the text.
struct ShownCharacter {
    char16_t shown = 0;
    std::size_t length = 1;
};

/// What a Windows-1252 character of a text is drawn as.
[[nodiscard]] char16_t shownByte(char character);

/// Reads the reference that `text` begins with; its first character is '&'. The characters of ISO
/// 8859-1 by the names of HTML 4, amp, lt, gt, quot, and numbers, with their semicolon or without;
/// &apos; with it. An '&' that begins no reference is itself.
[[nodiscard]] ShownCharacter shownReference(std::string_view text);

} // namespace quillmere
