#pragma once

#include <cstddef>
#include <random>
#include <string>

namespace quillmere::test {

/// `length` bytes that follow from `seed` alone.
[[nodiscard]] inline std::string randomBytes(std::size_t length, unsigned seed)
{
    std::mt19937 random(seed);
    std::string bytes(length, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random() & 0xFFU);
    return bytes;
}

} // namespace quillmere::test
