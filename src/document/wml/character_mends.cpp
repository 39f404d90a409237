// References are read by their syntax in XML 1.0 (4.1). What is right is copied byte for byte. Held
// by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/character_mends.h"

#include "document/text/text_search.h"
#include "document/wml/wml_characters.h"

#include <algorithm>
#include <charconv>

namespace quillmere::wml {

namespace {

constexpr std::size_t kLongestReference = 64;

std::string reference(char32_t point)
{
    return "&#" + std::to_string(static_cast<std::uint32_t>(point)) + ";";
}

/// Of "#228" and "#xE4".
bool isCharacterNumber(std::string_view number)
{
    number.remove_prefix(1);
    const bool isHexadecimal = number.starts_with('x');
    if (isHexadecimal) number.remove_prefix(1);
    std::uint32_t point = 0;
    const auto* const end = number.data() + number.size();
    const auto read = std::from_chars(number.data(), end, point, isHexadecimal ? 16 : 10);
    return read.ec == std::errc{} && read.ptr == end && isXmlCharacter(point);
}

struct PointRange {
    char32_t first = 0;
    char32_t last = 0;
};

constexpr PointRange kNameRanges[] = {{'0', '9'}, {'A', 'Z'}, {'a', 'z'}, {'-', '.'}, {':', ':'},
    {'_', '_'}, {0xB7, 0xB7}, {0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x37D}, {0x37F, 0x1FFF},
    {0x200C, 0x200D}, {0x203F, 0x2040}, {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF},
    {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};

bool continuesName(char32_t point)
{
    return std::any_of(std::begin(kNameRanges), std::end(kNameRanges),
        [&](const PointRange& range) { return point >= range.first && point <= range.last; });
}

/// Of what continues a name, these do not begin one.
bool beginsName(char32_t point)
{
    const bool isMark
        = point == 0xB7 || (point >= 0x300 && point <= 0x36F) || point == 0x203F || point == 0x2040;
    return !isMark && continuesName(point) && point > '9';
}

} // namespace

CharacterMender::CharacterMender(const DeckBytes& deck, const DeckEntities& entities)
    : deck_(deck)
    , entities_(entities)
{
}

MendedText CharacterMender::content(std::string_view text) const
{
    return mended(text, '\0', true);
}

MendedText CharacterMender::value(std::string_view value, char quote) const
{
    return mended(value, quote, true);
}

MendedText CharacterMender::plain(std::string_view text) const
{
    return mended(text, '\0', false);
}

MendedText CharacterMender::mended(std::string_view text, char quote, bool hasReferences) const
{
    MendedText result;
    result.text.reserve(text.size() + 16);
    for (std::size_t at = 0; at < text.size();) {
        const char character = text[at];
        if (hasReferences && character == '&') {
            at += mendReference(text, at, result);
        } else if (hasReferences && character == '<') {
            result.text += "&lt;";
            result.rules.add(MendRule::BareLess);
            ++at;
        } else if (hasReferences && character == '>' && result.text.ends_with("]]")) {
            result.text += "&gt;"; // else it would end a section
            result.rules.add(MendRule::BareLess);
            ++at;
        } else if (quote != '\0' && character == quote) {
            result.text += quote == '"' ? "&quot;" : "&apos;";
            ++at;
        } else {
            at += mendCharacter(text, at, hasReferences, result);
        }
    }
    return result;
}

/// Returns how much of the text is done.
std::size_t CharacterMender::mendReference(
    std::string_view text, std::size_t at, MendedText& result) const
{
    const auto rest = text.substr(at + 1, kLongestReference);
    const auto end = rest.find(';');
    const auto name = rest.substr(0, end == npos ? 0 : end);
    const bool isNumber = name.starts_with('#') && isCharacterNumber(name);
    const bool isEntity = isName(name);
    if (isNumber || (isEntity && entities_.knows(name))) {
        result.text.append(text, at, end + 2);
        return end + 2;
    }
    result.rules.add(isEntity ? MendRule::UnknownEntity : MendRule::BareAmpersand);
    const auto point = isEntity ? htmlEntity(name) : 0;
    result.text += point != 0 ? reference(point) : "&amp;";
    return point != 0 ? end + 2 : 1;
}

std::size_t CharacterMender::mendCharacter(
    std::string_view text, std::size_t at, bool hasReferences, MendedText& result) const
{
    const auto character = deck_.characterAt(text, at);
    if (character.isValid) {
        result.text.append(text, at, character.length);
        return character.length;
    }
    result.rules.add(MendRule::BadCharacter);
    const bool isControl = character.point < 0x20;
    const bool isSpace = character.point == '\v' || character.point == '\f';
    if (isSpace) result.text += ' ';
    if (!isControl && isXmlCharacter(character.point))
        result.text += hasReferences ? reference(character.point) : deck_.spelled(character.point);
    return character.length;
}

bool CharacterMender::isName(std::string_view name) const
{
    for (std::size_t at = 0; at < name.size();) {
        const auto character = deck_.characterAt(name, at);
        if (!character.isValid) return false;
        if (at == 0 && !beginsName(character.point)) return false;
        if (!continuesName(character.point)) return false;
        at += character.length;
    }
    return !name.empty();
}

} // namespace quillmere::wml
