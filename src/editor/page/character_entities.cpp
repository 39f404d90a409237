// No name of the table begins another one, so the name that a text begins with is the last one
// that does not sort behind the text. Held by surface_page_test.cpp.

#include "editor/page/character_entities.h"

#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quillmere {

namespace {

struct NamedCharacter {
    std::string_view name;
    char16_t character;
};

// The characters of ISO 8859-1 that HTML has names for, and those of XML.
constexpr auto kNames = std::to_array<NamedCharacter>({{"AElig", 198}, {"Aacute", 193},
    {"Acirc", 194}, {"Agrave", 192}, {"Aring", 197}, {"Atilde", 195}, {"Auml", 196},
    {"Ccedil", 199}, {"ETH", 208}, {"Eacute", 201}, {"Ecirc", 202}, {"Egrave", 200}, {"Euml", 203},
    {"Iacute", 205}, {"Icirc", 206}, {"Igrave", 204}, {"Iuml", 207}, {"Ntilde", 209},
    {"Oacute", 211}, {"Ocirc", 212}, {"Ograve", 210}, {"Oslash", 216}, {"Otilde", 213},
    {"Ouml", 214}, {"THORN", 222}, {"Uacute", 218}, {"Ucirc", 219}, {"Ugrave", 217}, {"Uuml", 220},
    {"Yacute", 221}, {"aacute", 225}, {"acirc", 226}, {"acute", 180}, {"aelig", 230},
    {"agrave", 224}, {"amp", 38}, {"apos", 39}, {"aring", 229}, {"atilde", 227}, {"auml", 228},
    {"brvbar", 166}, {"ccedil", 231}, {"cedil", 184}, {"cent", 162}, {"copy", 169}, {"curren", 164},
    {"deg", 176}, {"divide", 247}, {"eacute", 233}, {"ecirc", 234}, {"egrave", 232}, {"eth", 240},
    {"euml", 235}, {"frac12", 189}, {"frac14", 188}, {"frac34", 190}, {"gt", 62}, {"iacute", 237},
    {"icirc", 238}, {"iexcl", 161}, {"igrave", 236}, {"iquest", 191}, {"iuml", 239}, {"laquo", 171},
    {"lt", 60}, {"macr", 175}, {"micro", 181}, {"middot", 183}, {"nbsp", 160}, {"not", 172},
    {"ntilde", 241}, {"oacute", 243}, {"ocirc", 244}, {"ograve", 242}, {"ordf", 170}, {"ordm", 186},
    {"oslash", 248}, {"otilde", 245}, {"ouml", 246}, {"para", 182}, {"plusmn", 177}, {"pound", 163},
    {"quot", 34}, {"raquo", 187}, {"reg", 174}, {"sect", 167}, {"shy", 173}, {"sup1", 185},
    {"sup2", 178}, {"sup3", 179}, {"szlig", 223}, {"thorn", 254}, {"times", 215}, {"uacute", 250},
    {"ucirc", 251}, {"ugrave", 249}, {"uml", 168}, {"uuml", 252}, {"yacute", 253}, {"yen", 165},
    {"yuml", 255}});
static_assert(std::ranges::is_sorted(kNames, {}, &NamedCharacter::name));
constexpr std::size_t kLongestName = 6;
constexpr std::string_view kOnlyWithSemicolon = "apos"; // no name of HTML's own

constexpr char32_t kBeyond = 0x10000; // the first one that 16 bits cannot hold

/// What the surface draws: a box for all that a text document keeps for itself or cannot draw.
char16_t drawn(char32_t point)
{
    if (point == '\t' || point == '\n' || point == '\r') return u' ';
    const bool isControl = point < 0x20 || (point >= 0x7F && point < 0xA0);
    const bool isSurrogate = point >= 0xD800 && point < 0xE000;
    const bool isSeparator = point == 0x2028 || point == 0x2029;
    const bool isReserved = (point >= 0xFDD0 && point <= 0xFDEF) || point >= 0xFFF9;
    if (isControl || isSurrogate || isSeparator || isReserved) return kUnknownCharacter;
    return static_cast<char16_t>(point);
}

/// A reference by number means a Windows-1252 character where it names a control, as in browsers.
char16_t numbered(char32_t point)
{
    const bool isByte = point >= 0x80 && point < 0xA0;
    return drawn(isByte ? toCodePoint(static_cast<char>(point)) : point);
}

std::optional<unsigned> digitOf(char character, unsigned base)
{
    const auto code = static_cast<unsigned char>(character);
    unsigned value = base;
    if (code >= '0' && code <= '9') value = code - '0';
    const unsigned letter = code | 0x20U;
    if (letter >= 'a' && letter <= 'f') value = letter - 'a' + 10;
    return value < base ? std::optional(value) : std::nullopt;
}

/// `rest` stands behind "&#".
std::optional<ShownCharacter> byNumber(std::string_view rest)
{
    const bool isHexadecimal = rest.starts_with('x') || rest.starts_with('X');
    const unsigned base = isHexadecimal ? 16 : 10;
    const std::size_t first = isHexadecimal ? 1 : 0;
    std::size_t end = first;
    char32_t point = 0;
    for (; end < rest.size(); ++end) {
        const auto digit = digitOf(rest[end], base);
        if (!digit) break;
        point = std::min<char32_t>(point * base + *digit, kBeyond);
    }
    if (end == first) return std::nullopt;
    const std::size_t semicolon = rest.substr(end).starts_with(';') ? 1 : 0;
    return ShownCharacter{numbered(point), 2 + end + semicolon};
}

/// `rest` stands behind "&".
std::optional<ShownCharacter> byName(std::string_view rest)
{
    const auto* const behind
        = std::ranges::upper_bound(kNames, rest.substr(0, kLongestName), {}, &NamedCharacter::name);
    if (behind == kNames.begin()) return std::nullopt;
    const auto& row = *std::prev(behind);
    if (!rest.starts_with(row.name)) return std::nullopt;
    const std::size_t semicolon = rest.substr(row.name.size()).starts_with(';') ? 1 : 0;
    if (semicolon == 0 && row.name == kOnlyWithSemicolon) return std::nullopt;
    return ShownCharacter{row.character, 1 + row.name.size() + semicolon};
}

std::array<char16_t, 256> drawnBytes()
{
    std::array<char16_t, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code)
        table[code] = drawn(toCodePoint(static_cast<char>(code)));
    return table;
}

} // namespace

char16_t shownByte(char character)
{
    static const auto kTable = drawnBytes();
    return kTable[static_cast<unsigned char>(character)];
}

ShownCharacter shownReference(std::string_view text)
{
    const auto reference
        = text.substr(1).starts_with('#') ? byNumber(text.substr(2)) : byName(text.substr(1));
    return reference.value_or(ShownCharacter{u'&', 1});
}

} // namespace quillmere
