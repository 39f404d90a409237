// The text is the file wherever markup is ASCII in it, so that a slice of it can be written as it
// is. Only UTF-16 and encodings with shifts are spelled anew; halves of pairs without their other
// half and an odd last byte are kept in it as what no UTF-8 has. Held by
// tests/document/wml/deck_bytes_test.cpp.

#include "document/wml/deck_bytes.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "document/wml/utf16_text.h"
#include "document/wml/wml_characters.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kSpace = " \t\r\n";
constexpr char32_t kOddByte = 0xDC00; // with the byte added: the second half of a pair

bool isBeyondAscii(char character)
{
    return static_cast<unsigned char>(character) >= 0x80;
}

/// The names under which the encodings are declared that need no iconv.
struct EncodingName {
    std::string_view name; ///< lower case
    DeckEncoding encoding = DeckEncoding::Utf8;
    bool isLatin1 = false;
};

constexpr EncodingName kEncodingNames[] = {
    {"", DeckEncoding::Utf8},
    {"utf-8", DeckEncoding::Utf8},
    {"utf8", DeckEncoding::Utf8},
    {"iso-8859-1", DeckEncoding::Windows1252, true},
    {"iso_8859-1", DeckEncoding::Windows1252, true},
    {"iso8859-1", DeckEncoding::Windows1252, true},
    {"latin1", DeckEncoding::Windows1252, true},
    {"windows-1252", DeckEncoding::Windows1252},
    {"cp1252", DeckEncoding::Windows1252},
};

/// Whether the file begins like UTF-16 without its mark: every second byte is zero.
bool looksLikeUtf16(std::string_view file, bool isBigEndian)
{
    const std::size_t zero = isBigEndian ? 0 : 1;
    for (std::size_t at = 0; at < 4; ++at) {
        if (at >= file.size() || (file[at] == '\0') != (at % 2 == zero)) return false;
    }
    return true;
}

/// A byte that the encoding has not.
DeckCharacter strayByte(char byte)
{
    return {1, toCodePoint(byte), false};
}

DeckCharacter utf8Character(std::string_view slice, std::size_t offset)
{
    const auto spelled = spelledPoint(slice, offset);
    const bool isHalf = spelled.point >= 0xD800 && spelled.point <= 0xDFFF;
    if (spelled.length == 0 || isHalf) return strayByte(slice[offset]);
    return {spelled.length, spelled.point, wml::isXmlCharacter(spelled.point)};
}

/// The codes that Windows-1252 leaves open stand for the control characters of the same number.
bool isOpenInWindows1252(char character)
{
    const auto point = toCodePoint(character);
    return point >= 0x80 && point < 0xA0;
}

} // namespace

std::string_view declaredEncoding(std::string_view text)
{
    const auto begin = std::min(text.find_first_not_of(kSpace), text.size());
    if (!standsAt(text, begin, "<?xml")) return {};
    const auto declaration = text.substr(begin, text.find('>', begin) - begin);
    auto at = findIgnoringCase(declaration, "encoding");
    if (at == npos) return {};
    at = declaration.find_first_not_of(" \t\r\n=\"'", at + std::string_view("encoding").size());
    if (at == npos) return {};
    return declaration.substr(at, declaration.find_first_of(" \t\r\n\"'?", at) - at);
}

DeckBytes::DeckBytes(std::string file)
{
    for (const bool isBigEndian : {false, true}) {
        const bool hasMark = file.starts_with(isBigEndian ? "\xFE\xFF" : "\xFF\xFE");
        if (!hasMark && !looksLikeUtf16(file, isBigEndian)) continue;
        encoding_ = isBigEndian ? DeckEncoding::Utf16BigEndian : DeckEncoding::Utf16LittleEndian;
        takeUtf16(file, hasMark);
        return;
    }
    text_ = std::move(file);
    hasDirectCharacters_ = std::any_of(text_.begin(), text_.end(), isBeyondAscii);
    hasMark_ = text_.starts_with(kUtf8Mark);
    if (hasMark_) text_.erase(0, kUtf8Mark.size());
    if (!hasMark_) takeDeclared(declaredEncoding(text_));
}

void DeckBytes::takeUtf16(std::string_view file, bool hasMark)
{
    hasMark_ = hasMark;
    hasDirectCharacters_ = true;
    if (hasMark) file.remove_prefix(2);
    text_ = utf8FromUtf16(file, encoding_ == DeckEncoding::Utf16BigEndian);
    hasOddByte_ = file.size() % 2 != 0;
    if (hasOddByte_) appendSpelled(text_, kOddByte + static_cast<unsigned char>(file.back()));
}

void DeckBytes::takeDeclared(std::string_view name)
{
    const auto* const known = std::find_if(std::begin(kEncodingNames), std::end(kEncodingNames),
        [&](const EncodingName& row) { return equalIgnoringCase(row.name, name); });
    if (known != std::end(kEncodingNames)) {
        encoding_ = known->encoding;
        isLatin1_ = known->isLatin1;
        return;
    }
    const auto named = NamedEncoding::find(name);
    declaresWrongly_ = !named;
    if (!named) return;
    named_ = *named;
    encoding_ = DeckEncoding::Named;
    if (named_.shifts()) takeShifting();
}

/// Only where the file comes back as it was.
void DeckBytes::takeShifting()
{
    auto utf8 = named_.utf8Of(text_);
    isShifting_ = utf8 && named_.fileOf(*utf8) == text_;
    if (!isShifting_) return;
    text_ = std::move(*utf8);
    hasDirectCharacters_ = std::any_of(text_.begin(), text_.end(), isBeyondAscii);
}

bool DeckBytes::isUtf16() const
{
    return encoding_ == DeckEncoding::Utf16LittleEndian
        || encoding_ == DeckEncoding::Utf16BigEndian;
}

std::string DeckBytes::fileOf(std::string_view text) const
{
    if (isShifting_) return named_.fileOf(text).value_or(std::string(text));
    if (!isUtf16()) return std::string(hasMark_ ? kUtf8Mark : "").append(text);
    const bool isBigEndian = encoding_ == DeckEncoding::Utf16BigEndian;
    std::string odd;
    if (hasOddByte_ && text.size() >= 3) {
        const auto last = spelledPoint(text, text.size() - 3);
        const bool isOdd = last.point >= kOddByte && last.point < kOddByte + 0x100;
        if (isOdd) odd = static_cast<char>(last.point - kOddByte);
        if (isOdd) text.remove_suffix(3);
    }
    const std::string_view mark = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    return std::string(hasMark_ ? mark : "") + utf16FromUtf8(text, isBigEndian) + odd;
}

DeckCharacter DeckBytes::characterAt(std::string_view slice, std::size_t offset) const
{
    const char first = slice[offset];
    const auto point = static_cast<unsigned char>(first);
    if (point < 0x80) return {1, point, wml::isXmlCharacter(point)};
    return wideCharacterAt(slice, offset);
}

DeckCharacter DeckBytes::wideCharacterAt(std::string_view slice, std::size_t offset) const
{
    const char first = slice[offset];
    if (encoding_ == DeckEncoding::Windows1252)
        return {1, toCodePoint(first), isLatin1_ || !isOpenInWindows1252(first)};
    if (encoding_ == DeckEncoding::Named && !isShifting_) {
        const auto named = named_.first(slice.substr(offset));
        if (!named) return strayByte(first);
        return {named->length, named->point, wml::isXmlCharacter(named->point)};
    }
    const auto spelled = spelledPoint(slice, offset);
    if (isUtf16() && spelled.length != 0)
        return {spelled.length, spelled.point, wml::isXmlCharacter(spelled.point)};
    return utf8Character(slice, offset);
}

std::string DeckBytes::decoded(std::string_view slice) const
{
    if (std::none_of(slice.begin(), slice.end(), isBeyondAscii)) return std::string(slice);
    std::string utf8;
    for (std::size_t at = 0; at < slice.size();) {
        const auto character = characterAt(slice, at);
        const bool isHalf = character.point >= 0xD800 && character.point <= 0xDFFF;
        appendSpelled(utf8, isHalf ? U'?' : character.point);
        at += character.length;
    }
    return fromUtf8(utf8);
}

std::optional<std::string> DeckBytes::spelling(char32_t point) const
{
    if (point < 0x80) return std::string(1, static_cast<char>(point));
    std::string utf8;
    appendSpelled(utf8, point);
    if (encoding_ == DeckEncoding::Named) {
        auto named = named_.spelled(point);
        return named && isShifting_ ? utf8 : named;
    }
    if (encoding_ != DeckEncoding::Windows1252) return utf8;
    if (isLatin1_ && point > 0xFF) return std::nullopt;
    auto character = fromUtf8(utf8);
    if (character.size() != 1 || (!isLatin1_ && isOpenInWindows1252(character.front())))
        return std::nullopt;
    return character;
}

std::string DeckBytes::spelled(char32_t point) const
{
    return spelling(point).value_or("?");
}

std::string DeckBytes::encoded(std::string_view text) const
{
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        const auto point = toCodePoint(character);
        const bool isDirect = point < 0x80 || hasDirectCharacters_;
        const auto spelt = isDirect ? spelling(point) : std::nullopt;
        result += spelt ? *spelt : "&#" + std::to_string(static_cast<std::uint32_t>(point)) + ";";
    }
    return result;
}

bool DeckBytes::isValid(std::string_view slice) const
{
    for (std::size_t at = 0; at < slice.size();) {
        const auto character = characterAt(slice, at);
        if (!character.isValid) return false;
        at += character.length;
    }
    return true;
}

} // namespace quillmere
