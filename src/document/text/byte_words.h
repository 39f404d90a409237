#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

// Eight characters at a time as one number, so that short keys are compared at once. All is inline.

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

inline void storeWord(char* at, std::uint64_t word)
{
    if (std::endian::native == std::endian::little)
        std::memcpy(at, &word, kWordLength);
    else
        for (std::size_t i = 0; i < kWordLength; ++i)
            at[i] = static_cast<char>(word >> 8 * i);
}

/// The same byte eight times.
[[nodiscard]] constexpr std::uint64_t wordOfEach(unsigned char byte)
{
    return std::uint64_t{0x0101010101010101} * byte;
}

inline constexpr std::uint64_t kHighBits = wordOfEach(0x80);

/// Eight characters of ASCII with capitals made small.
[[nodiscard]] constexpr std::uint64_t smallAscii(std::uint64_t word)
{
    const auto fromA = word + wordOfEach(0x80 - 'A'); // the high bit tells
    const auto behindZ = word + wordOfEach(0x80 - 'Z' - 1);
    const auto capitals = fromA & ~behindZ & kHighBits;
    return word | capitals >> 2U;
}

/// The eight characters of `text` from `offset` on, with zeros behind its end.
[[nodiscard]] constexpr std::uint64_t wordAt(std::string_view text, std::size_t offset)
{
    if (offset + kWordLength <= text.size()) return wordFrom(text.data() + offset);
    return offset < text.size() ? wordOf(text.data() + offset, text.size() - offset) : 0;
}

} // namespace quillmere
