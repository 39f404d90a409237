#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// The names of XML 1.0 (5th edition, 2.3). Those of ASCII are read here, in line; characters beyond
// it depend on how the bytes of the text spell them.

namespace quillmere {

/// What the bytes beyond ASCII of a text are.
enum class MarkupBytes : std::uint8_t {
    Utf8, ///< all of them
    Windows1252, ///< declared, or ISO-8859-1
    OtherCharset, ///< declared; which are letters is not known here, so that all may be
    Undeclared, ///< should be UTF-8; what is none is read as Windows-1252
};
[[nodiscard]] MarkupBytes markupBytesOf(std::string_view text);

/// What a byte may do in a name.
struct NameBytes {
    std::array<bool, 256> beginning{};
    std::array<bool, 256> continuing{};
};
inline constexpr auto kAsciiNames = [] {
    NameBytes names;
    for (unsigned code = 0; code < 0x80; ++code) {
        const bool isLetter = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
        names.beginning.at(code) = isLetter || code == '_' || code == ':';
        names.continuing.at(code) = names.beginning.at(code) || (code >= '0' && code <= '9')
            || code == '-' || code == '.';
    }
    return names;
}();

/// Whether an ASCII character begins or continues a name.
[[nodiscard]] constexpr bool beginsName(char character)
{
    return kAsciiNames.beginning[static_cast<unsigned char>(character)];
}
[[nodiscard]] constexpr bool continuesName(char character)
{
    return kAsciiNames.continuing[static_cast<unsigned char>(character)];
}

/// The length of the character beyond ASCII at the begin of `text` if a name may have it, and begin
/// with it where it `isFirst`; else 0.
[[nodiscard]] std::size_t wideNameCharacter(std::string_view text, MarkupBytes bytes, bool isFirst);

/// The length of the name that `text` begins with, 0 for none.
[[nodiscard]] inline std::size_t nameLength(std::string_view text, MarkupBytes bytes)
{
    std::size_t length = 0;
    while (length < text.size()) {
        const bool isAscii = static_cast<unsigned char>(text[length]) < 0x80;
        if (isAscii && !(length == 0 ? beginsName(text[0]) : continuesName(text[length]))) break;
        const auto step = isAscii ? 1 : wideNameCharacter(text.substr(length), bytes, length == 0);
        if (step == 0) break;
        length += step;
    }
    return length;
}

} // namespace quillmere
