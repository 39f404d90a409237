// One character at a time: only what is beyond ASCII is asked for, which is little of a deck. Files
// with shifts are converted as a whole. Held by tests/document/wml/deck_bytes_test.cpp.

#include "document/wml/named_encoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillmere {

namespace {

constexpr std::size_t kLongestCharacter = 4;
constexpr std::size_t kMostGrowth = 8; // a character of two bytes with shifts around it
constexpr char32_t kCharacterOfShift = 0x4E00; // that encodings with shifts have, behind one
constexpr char kEscape = '\x1B';

std::shared_ptr<void> openConversion(const std::string& to, const std::string& from)
{
    iconv_t conversion = iconv_open(to.c_str(), from.c_str());
    // How iconv says so. NOLINTNEXTLINE(performance-no-int-to-ptr)
    if (conversion == reinterpret_cast<iconv_t>(-1)) return nullptr;
    return {conversion, [](void* open) { iconv_close(open); }};
}

/// Converts all of `bytes`; nullopt where that cannot be done or does not fit.
std::optional<std::string> converted(void* conversion, std::string_view bytes)
{
    if (conversion == nullptr) return std::nullopt;
    std::string source(bytes);
    std::array<char, 16> room{};
    char* in = source.data();
    std::size_t left = source.size();
    char* out = room.data();
    std::size_t free = room.size();
    iconv(conversion, nullptr, nullptr, nullptr, nullptr);
    if (iconv(conversion, &in, &left, &out, &free) != 0 || left != 0) return std::nullopt;
    return std::string(room.data(), room.size() - free);
}

/// Converts a whole text, with the shift back to ASCII at its end.
std::optional<std::string> convertedWhole(void* conversion, std::string_view bytes)
{
    if (conversion == nullptr) return std::nullopt;
    std::string source(bytes);
    std::string result(bytes.size() * kMostGrowth + kMostGrowth, '\0');
    char* in = source.data();
    std::size_t left = source.size();
    char* out = result.data();
    std::size_t free = result.size();
    const bool isWhole = iconv(conversion, &in, &left, &out, &free) == 0
        && iconv(conversion, nullptr, nullptr, &out, &free) == 0;
    if (!isWhole) return std::nullopt;
    result.resize(result.size() - free);
    return result;
}

std::string inUtf32(char32_t point)
{
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        bytes += static_cast<char>((point >> shift) & 0xFFU);
    return bytes;
}

char32_t fromUtf32(std::string_view bytes)
{
    char32_t point = 0;
    for (const char byte : bytes)
        point = (point << 8U) | static_cast<unsigned char>(byte);
    return point;
}

} // namespace

std::optional<NamedEncoding> NamedEncoding::find(std::string_view name)
{
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')
            || c == '-' || c == '_' || c == '.' || c == ':';
    };
    if (name.empty() || !std::all_of(name.begin(), name.end(), isPlain)) return std::nullopt;
    NamedEncoding encoding;
    encoding.name_ = name;
    encoding.reading_ = openConversion("UTF-32BE", std::string(name));
    encoding.writing_ = openConversion(std::string(name), "UTF-32BE");
    if (!encoding.reading_ || !encoding.writing_) return std::nullopt;
    constexpr std::string_view kMarkup = "<a b='c&#0;'/>~\"+";
    for (const char character : kMarkup) {
        const auto spelled = encoding.spelled(static_cast<char32_t>(character));
        if (!spelled || *spelled != std::string(1, character)) return std::nullopt;
    }
    return encoding;
}

std::optional<NamedEncoding::Decoded> NamedEncoding::first(std::string_view bytes) const
{
    for (std::size_t length = 1; length <= std::min(kLongestCharacter, bytes.size()); ++length) {
        const auto point = converted(reading_.get(), bytes.substr(0, length));
        if (point && point->size() == 4) return Decoded{length, fromUtf32(*point)};
    }
    return std::nullopt;
}

std::optional<std::string> NamedEncoding::spelled(char32_t point) const
{
    return converted(writing_.get(), inUtf32(point));
}

bool NamedEncoding::shifts() const
{
    return spelled(kCharacterOfShift).value_or("").find(kEscape) != std::string::npos;
}

std::optional<std::string> NamedEncoding::utf8Of(std::string_view file) const
{
    return convertedWhole(openConversion("UTF-8", name_).get(), file);
}

std::optional<std::string> NamedEncoding::fileOf(std::string_view utf8) const
{
    return convertedWhole(openConversion(name_, "UTF-8").get(), utf8);
}

} // namespace quillmere
