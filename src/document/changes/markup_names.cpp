// Held by markup_document_test.cpp.

#include "document/changes/markup_names.h"

#include "document/changes/plain_markup.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace quillmere {

namespace {

struct PointRange {
    char32_t first;
    char32_t last;
};

constexpr PointRange kBeginning[] = {{0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x2FF}, {0x370, 0x37D},
    {0x37F, 0x1FFF}, {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF},
    {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};
constexpr PointRange kOnlyContinuing[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

bool isIn(std::span<const PointRange> ranges, char32_t point)
{
    return std::any_of(ranges.begin(), ranges.end(),
        [&](const PointRange& range) { return point >= range.first && point <= range.last; });
}

constexpr std::string_view kWindows1252Names[]
    = {"windows-1252", "cp1252", "iso-8859-1", "iso_8859-1", "iso8859-1", "latin1"};

bool names(std::string_view declaration, std::string_view encoding)
{
    const auto at = declaration.find(encoding);
    if (at == std::string_view::npos) return false;
    const auto behind = declaration.substr(at + encoding.size(), 1);
    return behind.find_first_of("\"'") == 0; // no ISO-8859-15
}

/// How many bytes the character of several has that begins with `lead`.
std::size_t utf8Length(char lead)
{
    const auto code = static_cast<unsigned char>(lead);
    return code >= 0xF0 ? 4 : code >= 0xE0 ? 3 : 2;
}

char32_t pointAt(std::string_view spelled)
{
    const auto lead = static_cast<unsigned char>(spelled.front());
    auto point = static_cast<char32_t>(lead & (0x7FU >> spelled.size()));
    for (const char next : spelled.substr(1))
        point = (point << 6U) | (static_cast<unsigned char>(next) & 0x3FU);
    return point;
}

} // namespace

MarkupBytes markupBytesOf(std::string_view text)
{
    if (isPlainText(text) || validUtf8(text) == text) return MarkupBytes::Utf8;
    const auto declaration = lowerCase(text.substr(0, text.find('>')));
    const bool declares = declaration.starts_with("<?xml")
        && declaration.find("encoding") != std::string::npos
        && declaration.find("utf") == std::string::npos;
    if (!declares) return MarkupBytes::Undeclared;
    const bool isKnown = std::any_of(std::begin(kWindows1252Names), std::end(kWindows1252Names),
        [&](std::string_view name) { return names(declaration, name); });
    return isKnown ? MarkupBytes::Windows1252 : MarkupBytes::OtherCharset;
}

std::size_t wideNameCharacter(std::string_view text, MarkupBytes bytes, bool isFirst)
{
    if (bytes == MarkupBytes::OtherCharset) return 1;
    const auto spelled = text.substr(0, utf8Length(text.front()));
    const bool isUtf8 = bytes == MarkupBytes::Utf8
        || (bytes == MarkupBytes::Undeclared && validUtf8(spelled) == spelled);
    const auto length = isUtf8 ? spelled.size() : 1;
    const auto point = isUtf8 ? pointAt(spelled) : toCodePoint(text.front());
    const bool isAllowed = isIn(kBeginning, point) || (!isFirst && isIn(kOnlyContinuing, point));
    return isAllowed ? length : 0;
}

} // namespace quillmere
