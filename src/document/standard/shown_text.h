#pragma once

#include <string>
#include <string_view>

// The characters of a deck as a design text has them, and back. Both sides are Windows-1252, with
// references for what that has not. No design text holds a '<', '>' or '&' that is not markup or
// the begin of a reference.

namespace quillmere {

[[nodiscard]] constexpr bool isSpaceByte(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

/// A word of a deck as it is shown: references of characters that Windows-1252 has become these,
/// but for '&', '<', '>', the hard blank and the soft hyphen, which are spelled `&amp;`, `&lt;`,
/// `&gt;`, `&nbsp;` and `&shy;`; numbers are decimal; what no one knows stays.
[[nodiscard]] std::string shownText(std::string_view text);

/// The same for the value of an attribute, to stand in double quotes: white space is blanks.
[[nodiscard]] std::string shownValue(std::string_view value);

/// A shown value without references: the characters themselves, as far as Windows-1252 has them.
[[nodiscard]] std::string plainValue(std::string_view shown);

/// A piece of a deck's source as one word of a marker, and back.
[[nodiscard]] std::string hiddenSource(std::string_view source);
[[nodiscard]] std::string sourceOfHidden(std::string_view hidden);

/// Shown text as a deck has it: each bare '<' becomes `&lt;`. Without `knowsHardBlank` the hard
/// blank and the soft hyphen are numbers, since a deck without document type has no names for them.
[[nodiscard]] std::string writtenText(std::string_view shown, bool knowsHardBlank);

/// A shown value as it is written between `quote`s.
[[nodiscard]] std::string writtenValue(std::string_view shown, char quote, bool knowsHardBlank);

} // namespace quillmere
