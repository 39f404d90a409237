#pragma once

#include <array>
#include <cstdint>
#include <string_view>

// What the characters of a deck's text are in its markup. All that is beyond ASCII may stand in
// names here; whether it is a letter tells who knows the encoding.

namespace quillmere::wml {

enum CharacterKind : std::uint8_t {
    Space = 1,
    BeginsName = 2,
    ContinuesName = 4,
    UpperCase = 8,
    Control = 16,
    Reference = 32, ///< '&'
    BeyondAscii = 64,
    Bracket = 128, ///< ']' and '<'
};

/// What makes a character of a word or value worth a second look.
inline constexpr std::uint8_t kSuspicious = Control | Reference | BeyondAscii;

inline constexpr auto kKinds = [] {
    std::array<std::uint8_t, 256> kinds{};
    for (unsigned code = 0; code < kinds.size(); ++code) {
        const bool isSpace = code == ' ' || code == '\t' || code == '\r' || code == '\n';
        const bool isUpper = code >= 'A' && code <= 'Z';
        const bool isLetter = isUpper || (code >= 'a' && code <= 'z') || code == '_' || code == ':';
        const bool isDigit = code >= '0' && code <= '9';
        const bool isBeyond = code >= 0x80;
        unsigned kind = 0;
        if (isSpace) kind |= Space;
        if (isLetter || isBeyond) kind |= BeginsName | ContinuesName;
        if (isDigit || code == '-' || code == '.') kind |= ContinuesName;
        if (isUpper) kind |= UpperCase;
        if (code < 0x20 && !isSpace) kind |= Control;
        if (code == '&') kind |= Reference;
        if (isBeyond) kind |= BeyondAscii;
        if (code == ']' || code == '<') kind |= Bracket;
        kinds.at(code) = static_cast<std::uint8_t>(kind);
    }
    return kinds;
}();

[[nodiscard]] constexpr std::uint8_t kindOf(char character)
{
    return kKinds[static_cast<unsigned char>(character)];
}

[[nodiscard]] constexpr bool is(char character, CharacterKind kind)
{
    return (kindOf(character) & kind) != 0;
}

/// Whether the '<' at `at` begins a tag, comment, instruction or declaration.
[[nodiscard]] constexpr bool beginsMarkup(std::string_view text, std::size_t at)
{
    if (at + 1 >= text.size() || text[at] != '<') return false;
    const char next = text[at + 1];
    if (next != '/') return next == '!' || next == '?' || is(next, BeginsName);
    auto name = at + 2;
    while (name < text.size() && is(text[name], Space))
        ++name;
    return name < text.size() && (text[name] == '>' || is(text[name], BeginsName));
}

/// Whether XML 1.0 (2.2) allows a character.
[[nodiscard]] constexpr bool isXmlCharacter(char32_t point)
{
    if (point < 0x20) return point == '\t' || point == '\n' || point == '\r';
    const bool isHalf = point >= 0xD800 && point <= 0xDFFF;
    return !isHalf && point <= 0x10FFFF && point != 0xFFFE && point != 0xFFFF;
}

} // namespace quillmere::wml
