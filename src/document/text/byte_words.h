#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

// Eight characters at a time as one number. Texts are full of tags, so that the next '<' or '>' is
// mostly a few characters away, and finding it must not cost a call. All is inline.

namespace quillmere {

inline constexpr std::size_t kWordLength = 8;

/// The first `count` of at most eight characters from `at` on, the first one in the lowest byte.
[[nodiscard]] constexpr std::uint64_t wordOf(const char* at, std::size_t count)
{
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < count; ++i)
        word |= static_cast<std::uint64_t>(static_cast<unsigned char>(at[i])) << (8 * i);
    return word;
}

/// Eight characters, in one load where the processor has the first one in the lowest byte as well.
[[nodiscard]] constexpr std::uint64_t wordFrom(const char* at)
{
    if (std::is_constant_evaluated() || std::endian::native != std::endian::little)
        return wordOf(at, kWordLength);
    std::uint64_t word = 0;
    std::memcpy(&word, at, kWordLength);
    return word;
}

/// The eight characters of `text` from `offset` on, with zeros behind its end.
[[nodiscard]] constexpr std::uint64_t wordAt(std::string_view text, std::size_t offset)
{
    if (offset + kWordLength <= text.size()) return wordFrom(text.data() + offset);
    return offset < text.size() ? wordOf(text.data() + offset, text.size() - offset) : 0;
}

/// The first character at or behind `from` that is `wanted` once the bits `ignored` are set; npos
/// where there is none.
[[nodiscard]] inline std::size_t findByte(
    std::string_view text, char wanted, std::size_t from = 0, char ignored = 0)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    const std::uint64_t setBits = kOnes * static_cast<unsigned char>(ignored);
    const std::uint64_t pattern = kOnes * static_cast<unsigned char>(wanted);
    if (from >= text.size()) return std::string_view::npos;
    for (; text.size() - from >= kWordLength; from += kWordLength) {
        const auto zeroIfWanted = (wordFrom(text.data() + from) | setBits) ^ pattern;
        // The high bit of each byte that is zero; above the lowest of them others may be set, too.
        const auto found = (zeroIfWanted - kOnes) & ~zeroIfWanted & kHighBits;
        if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found)) / 8;
    }
    while (from < text.size() && (text[from] | ignored) != wanted)
        ++from;
    return from < text.size() ? from : std::string_view::npos;
}

/// The first '<' or '>' at or behind `from`; the two differ in one bit.
[[nodiscard]] inline std::size_t findBracket(std::string_view text, std::size_t from)
{
    return findByte(text, '>', from, '<' ^ '>');
}

} // namespace quillmere
