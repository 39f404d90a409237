#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// The one border between Unicode and the core's text. All text of the core is Windows-1252, one
// byte a character (code table of the Unicode consortium, CP1252; the five codes that the table
// leaves open stand for the control characters of the same number).

namespace quillmere {

namespace windows1252 {

/// The lower case of each character by its code.
inline constexpr auto kLowerCase = [] {
    std::array<char, 256> table{};
    for (unsigned code = 0; code < table.size(); ++code) {
        const bool isLetter = (code >= 'A' && code <= 'Z')
            || (code >= 0xC0 && code <= 0xDE && code != 0xD7); // the multiplication sign
        const bool isEarlyLetter = code == 0x8A || code == 0x8C || code == 0x8E;
        const unsigned distance = isLetter ? 0x20 : isEarlyLetter ? 0x10 : code == 0x9F ? 0x60 : 0;
        table.at(code) = static_cast<char>(code + distance);
    }
    return table;
}();

} // namespace windows1252

/// The Unicode code point of a Windows-1252 character.
[[nodiscard]] char32_t toCodePoint(char character);

/// UTF-8 (RFC 3629) as Windows-1252; a character that Windows-1252 has not becomes a decimal
/// character reference such as "&#8722;". Bytes that are no UTF-8 stay as they are.
[[nodiscard]] std::string fromUtf8(std::string_view utf8);

/// Windows-1252 as UTF-8.
[[nodiscard]] std::string toUtf8(std::string_view text);

/// UTF-8 whatever the bytes are, such as those of a file's name: what is UTF-8 stays, each other
/// byte becomes its Windows-1252 character.
[[nodiscard]] std::string validUtf8(std::string_view bytes);

/// The bytes of a deck file as Windows-1252: converted where the file is UTF-8 (byte order mark,
/// XML declaration, or valid UTF-8 with characters of several bytes), else as they are. A byte
/// order mark is dropped.
[[nodiscard]] std::string textFromDeckBytes(std::string_view bytes);

/// Lower case of a Windows-1252 character, accented letters included.
[[nodiscard]] inline char lowerCase(char character)
{
    return windows1252::kLowerCase[static_cast<unsigned char>(character)];
}
[[nodiscard]] std::string lowerCase(std::string_view text);
/// The same into memory that has room for all of `text`, which may be its own.
void lowerCaseInto(char* target, std::string_view text);

[[nodiscard]] bool equalIgnoringCase(std::string_view left, std::string_view right);

/// `text` without the blanks (code 32) at its ends.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);

} // namespace quillmere
