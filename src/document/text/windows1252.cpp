// One table holds what the codes 128 to 159 stand for; all other codes are their own code points.
// Held by windows1252_test.cpp.

#include "document/text/windows1252.h"

#include "document/text/byte_words.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quillmere {

namespace {

constexpr std::array<char16_t, 32> kCodePointsFrom128
    = {0x20AC, 0x81, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039,
        0x0152, 0x8D, 0x017D, 0x8F, 0x90, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D, 0x017E, 0x0178};

unsigned char code(char character)
{
    return static_cast<unsigned char>(character);
}

std::optional<char> fromCodePoint(char32_t point)
{
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) return static_cast<char>(point);
    const auto* const found
        = std::find(kCodePointsFrom128.begin(), kCodePointsFrom128.end(), point);
    if (found == kCodePointsFrom128.end()) return std::nullopt;
    return static_cast<char>(0x80 + (found - kCodePointsFrom128.begin()));
}

struct Decoded {
    char32_t point = 0;
    std::size_t length = 0; // in bytes; 0: no UTF-8
};

constexpr std::array<char32_t, 5> kSmallestOfLength = {0, 0, 0x80, 0x800, 0x10000};

Decoded decodeUtf8(std::string_view bytes, std::size_t at)
{
    const unsigned char lead = code(bytes[at]);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() - at < length) return {};
    char32_t point = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char next = code(bytes[at + i]);
        if ((next & 0xC0U) != 0x80) return {};
        point = (point << 6U) | (next & 0x3FU);
    }
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    if (point < kSmallestOfLength[length] || point > 0x10FFFF || surrogate) return {};
    return {point, length};
}

void appendUtf8(std::string& result, char32_t point)
{
    const auto append = [&](char32_t bits) { result += static_cast<char>(bits); };
    if (point < 0x80) {
        append(point);
    } else if (point < 0x800) {
        append(0xC0U | (point >> 6U));
        append(0x80U | (point & 0x3FU));
    } else {
        append(0xE0U | (point >> 12U));
        append(0x80U | ((point >> 6U) & 0x3FU));
        append(0x80U | (point & 0x3FU));
    }
}

bool isAscii(std::string_view bytes)
{
    unsigned char bits = 0; // of all bytes, without a branch, so that many are read at a time
    for (const char byte : bytes)
        bits = static_cast<unsigned char>(bits | code(byte));
    return bits < 0x80;
}

bool isUtf8(std::string_view bytes)
{
    for (std::size_t at = 0; at < bytes.size();) {
        const auto length = code(bytes[at]) < 0x80 ? 1 : decodeUtf8(bytes, at).length;
        if (length == 0) return false;
        at += length;
    }
    return true;
}

} // namespace

char32_t toCodePoint(char character)
{
    const unsigned char value = code(character);
    return value >= 0x80 && value < 0xA0 ? kCodePointsFrom128[value - 0x80] : value;
}

std::string fromUtf8(std::string_view utf8)
{
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const auto decoded = decodeUtf8(utf8, at);
        const auto character = decoded.length == 0 ? utf8[at] : fromCodePoint(decoded.point);
        if (character) {
            result += *character;
        } else {
            result += "&#" + std::to_string(static_cast<std::uint32_t>(decoded.point)) + ";";
        }
        at += std::max<std::size_t>(decoded.length, 1);
    }
    return result;
}

std::string validUtf8(std::string_view bytes)
{
    std::string result;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto length = decodeUtf8(bytes, at).length;
        if (length == 0) {
            appendUtf8(result, toCodePoint(bytes[at]));
        } else {
            result.append(bytes.substr(at, length));
        }
        at += std::max<std::size_t>(length, 1);
    }
    return result;
}

std::string toUtf8(std::string_view text)
{
    std::string result;
    result.reserve(text.size() + text.size() / 4);
    for (const char character : text)
        appendUtf8(result, toCodePoint(character));
    return result;
}

std::string textFromDeckBytes(std::string_view bytes)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kByteOrderMark)) return fromUtf8(bytes.substr(kByteOrderMark.size()));
    // A file that says UTF-8 and is none holds Windows-1252 all the same, so the bytes decide.
    if (isAscii(bytes) || !isUtf8(bytes)) return std::string(bytes);
    return fromUtf8(bytes);
}

std::string lowerCase(std::string_view text)
{
    std::string result(text);
    lowerCaseInto(result.data(), result);
    return result;
}

void lowerCaseInto(char* target, std::string_view text)
{
    std::size_t i = 0;
    for (; i + kWordLength <= text.size(); i += kWordLength) {
        const auto word = wordFrom(text.data() + i);
        if ((word & kHighBits) != 0) break;
        storeWord(target + i, smallAscii(word));
    }
    for (; i < text.size(); ++i)
        target[i] = lowerCase(text[i]);
}

bool equalIgnoringCase(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

std::string_view trimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace quillmere
