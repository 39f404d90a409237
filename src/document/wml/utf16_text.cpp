// Held by tests/document/wml/deck_bytes_test.cpp: any bytes, there and back.

#include "document/wml/utf16_text.h"

#include <array>
#include <cstddef>

namespace quillmere {

namespace {

constexpr std::array<char32_t, 5> kSmallestOfLength = {0, 0, 0x80, 0x800, 0x10000};

unsigned code(char character)
{
    return static_cast<unsigned char>(character);
}

bool isFirstHalf(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isSecondHalf(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

char32_t unitAt(std::string_view bytes, std::size_t at, bool isBigEndian)
{
    const unsigned first = code(bytes[at]);
    const unsigned second = code(bytes[at + 1]);
    return isBigEndian ? (first << 8U) | second : (second << 8U) | first;
}

void appendUnit(std::string& bytes, char32_t unit, bool isBigEndian)
{
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    bytes += isBigEndian ? high : low;
    bytes += isBigEndian ? low : high;
}

} // namespace

void appendSpelled(std::string& text, char32_t point)
{
    const auto append = [&](char32_t bits) { text += static_cast<char>(bits); };
    const auto appendRest = [&](unsigned shift) { append(0x80U | ((point >> shift) & 0x3FU)); };
    if (point < 0x80) return append(point);
    if (point < 0x800) {
        append(0xC0U | (point >> 6U));
    } else {
        if (point < 0x10000) {
            append(0xE0U | (point >> 12U));
        } else {
            append(0xF0U | (point >> 18U));
            appendRest(12);
        }
        appendRest(6);
    }
    appendRest(0);
}

SpelledPoint spelledPoint(std::string_view text, std::size_t offset)
{
    const unsigned lead = code(text[offset]);
    if (lead < 0x80) return {1, lead};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - offset < length) return {};
    char32_t point = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned next = code(text[offset + i]);
        if ((next & 0xC0U) != 0x80) return {};
        point = (point << 6U) | (next & 0x3FU);
    }
    if (point < kSmallestOfLength.at(length) || point > 0x10FFFF) return {};
    return {length, point};
}

std::string utf8FromUtf16(std::string_view bytes, bool isBigEndian)
{
    std::string text;
    text.reserve(bytes.size() / 2 + bytes.size() / 16);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        char32_t point = unitAt(bytes, at, isBigEndian);
        if (isFirstHalf(point) && at + 3 < bytes.size()) {
            const char32_t next = unitAt(bytes, at + 2, isBigEndian);
            if (isSecondHalf(next)) {
                point = 0x10000 + ((point - 0xD800) << 10U) + (next - 0xDC00);
                at += 2;
            }
        }
        appendSpelled(text, point);
    }
    return text;
}

std::string utf16FromUtf8(std::string_view text, bool isBigEndian)
{
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (std::size_t at = 0; at < text.size();) {
        const auto spelled = spelledPoint(text, at);
        const char32_t point = spelled.length == 0 ? code(text[at]) : spelled.point;
        at += spelled.length == 0 ? 1 : spelled.length;
        if (point < 0x10000) {
            appendUnit(bytes, point, isBigEndian);
        } else {
            appendUnit(bytes, 0xD800 + ((point - 0x10000) >> 10U), isBigEndian);
            appendUnit(bytes, 0xDC00 + ((point - 0x10000) & 0x3FFU), isBigEndian);
        }
    }
    return bytes;
}

} // namespace quillmere
