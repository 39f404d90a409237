// References are read by their syntax in XML 1.0 (4.1); the two tables hold the entities of XML
// and those that the document type of WML 1.1 adds. Held by markup_document_test.cpp.

#include "document/changes/character_references.h"

#include "document/text/windows1252.h"

#include <charconv>
#include <optional>

namespace quillmere {

namespace {

using Form = DecodedCharacter::Form;

struct NamedEntity {
    std::string_view name;
    char32_t point;
};

constexpr NamedEntity kEntities[] = {
    {"quot", '"'}, {"amp", '&'}, {"apos", '\''}, {"lt", '<'}, {"gt", '>'}, // XML
    {"nbsp", 0xA0}, {"shy", 0xAD}, // WML 1.1
};

constexpr std::size_t kLongestReference = 64; // longer ones are taken for an '&' in text

bool isCharacter(char32_t point)
{
    if (point < 0x20) return point == '\t' || point == '\n' || point == '\r';
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    return !surrogate && point <= 0x10FFFF && point != 0xFFFE && point != 0xFFFF;
}

std::optional<char32_t> numberedCharacter(std::string_view reference) // "#228" or "#xE4"
{
    reference.remove_prefix(1);
    const bool hexadecimal = reference.starts_with('x');
    if (hexadecimal) reference.remove_prefix(1);
    std::uint32_t point = 0;
    const auto* const end = reference.data() + reference.size();
    const auto read = std::from_chars(reference.data(), end, point, hexadecimal ? 16 : 10);
    if (read.ec != std::errc{} || read.ptr != end || !isCharacter(point)) return std::nullopt;
    return point;
}

std::string inWindows1252(char32_t point)
{
    for (unsigned code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        if (toCodePoint(character) == point) return {character};
    }
    std::string kept{kKeptReference, '#'};
    return kept.append(std::to_string(static_cast<std::uint32_t>(point))).append(";");
}

/// `name` is what stands between '&' and ';'.
DecodedCharacter decodeReference(std::string_view name, MarkupBytes bytes)
{
    const auto length = name.size() + 2;
    if (name.starts_with('#')) {
        const auto point = numberedCharacter(name);
        return point ? DecodedCharacter{Form::Known, length, inWindows1252(*point)}
                     : DecodedCharacter{Form::Broken, 1, "&"};
    }
    for (const auto& entity : kEntities) {
        if (entity.name == name) return {Form::Known, length, inWindows1252(entity.point)};
    }
    if (name.empty() || nameLength(name, bytes) != name.size()) return {Form::Broken, 1, "&"};
    return {Form::Unknown, length, kKeptReference + std::string(name) + ";"};
}

} // namespace

DecodedCharacter decodeCharacter(std::string_view text, std::size_t offset, MarkupBytes bytes)
{
    if (text[offset] != '&') return {Form::Plain, 1, std::string(1, text[offset])};
    const auto rest = text.substr(offset + 1, kLongestReference);
    const auto end = rest.find(';');
    if (end == std::string_view::npos) return {Form::Broken, 1, "&"};
    return decodeReference(rest.substr(0, end), bytes);
}

std::string decodeReferences(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto character = decodeCharacter(text, at);
        result += character.text;
        at += character.length;
    }
    return result;
}

} // namespace quillmere
