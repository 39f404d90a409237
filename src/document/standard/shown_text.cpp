// One walk over the text, reference by reference. Held by design_pieces_test.cpp.

#include "document/standard/shown_text.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace quillmere {

namespace {

constexpr std::size_t kLongestReference = 12; // "&#1114111;"
constexpr char kHardBlank = '\xA0';
constexpr char kSoftHyphen = '\xAD';
constexpr unsigned kFirstPrinted = 0x21; // a reference of a blank is no white space

struct Spelling {
    char character;
    std::string_view reference;
};
constexpr std::array kNames{Spelling{'&', "&amp;"}, Spelling{'<', "&lt;"}, Spelling{'>', "&gt;"},
    Spelling{'"', "&quot;"}, Spelling{'\'', "&apos;"}, Spelling{kHardBlank, "&nbsp;"},
    Spelling{kSoftHyphen, "&shy;"}};
constexpr std::array kHiddenNames{Spelling{'&', "&amp;"}, Spelling{'<', "&lt;"},
    Spelling{'>', "&gt;"}, Spelling{'\r', "&#13;"}, Spelling{'\n', "&#10;"}, Spelling{'\t', "&#9;"},
    Spelling{'-', "&#45;"}};

std::optional<char> characterOf(std::uint32_t codePoint)
{
    for (auto code = kFirstPrinted; code < 256; ++code) {
        const auto character = static_cast<char>(code);
        if (toCodePoint(character) == codePoint) return character;
    }
    return std::nullopt;
}

/// The reference that begins at `offset`, with its ';'; "" for none.
std::string_view referenceAt(std::string_view text, std::size_t offset)
{
    const auto end = text.substr(offset, kLongestReference).find(';');
    return end == npos ? std::string_view{} : text.substr(offset, end + 1);
}

std::optional<std::uint32_t> numberOf(std::string_view reference)
{
    if (!reference.starts_with("&#")) return std::nullopt;
    const bool isHex = reference.starts_with("&#x");
    const auto digits = reference.substr(isHex ? 3 : 2, reference.size() - (isHex ? 4 : 3));
    std::uint32_t number = 0;
    const auto* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, number, isHex ? 16 : 10);
    if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
    return number;
}

template <class Table> std::optional<char> named(const Table& names, std::string_view reference)
{
    const auto* const row = std::ranges::find(names, reference, &Spelling::reference);
    if (row == names.end()) return std::nullopt;
    return row->character;
}

std::optional<char> characterOf(std::string_view reference)
{
    const auto number = numberOf(reference);
    return number ? characterOf(*number) : named(kNames, reference);
}

void appendShown(std::string& result, char character, bool isValue)
{
    const bool isSpelled = isValue ? character != '\'' : character != '\'' && character != '"';
    const auto* const row = std::ranges::find(kNames, character, &Spelling::character);
    if (row != kNames.end() && isSpelled)
        result += row->reference;
    else
        result += isSpaceByte(character) ? ' ' : character;
}

/// Appends the reference at `offset` in its shown form and returns the offset behind it.
std::size_t appendReference(
    std::string& result, std::string_view text, std::size_t offset, bool isValue)
{
    const auto reference = referenceAt(text, offset);
    if (const auto character = characterOf(reference))
        appendShown(result, *character, isValue);
    else if (const auto number = numberOf(reference))
        result.append("&#").append(std::to_string(*number)).append(";");
    else
        return result += text[offset], offset + 1;
    return offset + reference.size();
}

std::string shown(std::string_view text, bool isValue)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == '&')
            at = appendReference(result, text, at, isValue);
        else
            appendShown(result, text[at++], isValue);
    }
    return result;
}

} // namespace

std::string shownText(std::string_view text)
{
    return shown(text, false);
}

std::string shownValue(std::string_view value)
{
    return shown(value, true);
}

std::string plainValue(std::string_view shown)
{
    std::string result;
    for (std::size_t at = 0; at < shown.size();) {
        const auto reference = shown[at] == '&' ? referenceAt(shown, at) : std::string_view{};
        const auto character = characterOf(reference);
        result += character.value_or(shown[at]);
        at += character ? reference.size() : 1;
    }
    return result;
}

std::string hiddenSource(std::string_view source)
{
    std::string result;
    result.reserve(source.size());
    for (std::size_t at = 0; at < source.size(); ++at) {
        const auto* const row = std::ranges::find(kHiddenNames, source[at], &Spelling::character);
        const bool isLoneDash = source[at] == '-' && source.substr(at, 2) != "--"
            && !(at > 0 && source[at - 1] == '-');
        if (row == kHiddenNames.end() || isLoneDash)
            result += source[at];
        else
            result += row->reference;
    }
    return result;
}

std::string sourceOfHidden(std::string_view hidden)
{
    std::string result;
    result.reserve(hidden.size());
    for (std::size_t at = 0; at < hidden.size();) {
        const auto reference = hidden[at] == '&' ? referenceAt(hidden, at) : std::string_view{};
        const auto character = named(kHiddenNames, reference);
        result += character.value_or(hidden[at]);
        at += character ? reference.size() : 1;
    }
    return result;
}

std::string writtenText(std::string_view shown, bool knowsHardBlank)
{
    return writtenValue(shown, '\0', knowsHardBlank);
}

std::string writtenValue(std::string_view shown, char quote, bool knowsHardBlank)
{
    std::string result;
    for (std::size_t at = 0; at < shown.size(); ++at) {
        const auto rest = shown.substr(at);
        if (shown[at] == '<')
            result += "&lt;";
        else if (shown[at] == quote)
            result += quote == '"' ? "&quot;" : "&apos;";
        else if (!knowsHardBlank && rest.starts_with("&nbsp;"))
            result += "&#160;", at += std::string_view("&nbsp;").size() - 1;
        else if (!knowsHardBlank && rest.starts_with("&shy;"))
            result += "&#173;", at += std::string_view("&shy;").size() - 1;
        else
            result += shown[at];
    }
    return result;
}

} // namespace quillmere
