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

/// The character that `text`, which is UTF-8, begins with.
char32_t pointAt(std::string_view text, std::size_t length)
{
    auto point = static_cast<char32_t>(static_cast<unsigned char>(text[0]) & (0x7FU >> length));
    for (std::size_t i = 1; i < length; ++i)
        point = (point << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
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
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t spelled = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    const auto length = bytes == MarkupBytes::Utf8 ? std::min(spelled, text.size()) : 1;
    const auto point
        = bytes == MarkupBytes::Utf8 ? pointAt(text, length) : toCodePoint(text.front());
    const bool isAllowed = isIn(kBeginning, point) || (!isFirst && isIn(kOnlyContinuing, point));
    return isAllowed ? length : 0;
}

} // namespace quillmere
