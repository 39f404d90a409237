#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace quillmere::test {

/// A small generator of random numbers that gives the same ones everywhere (SplitMix64, after
/// G. Steele et al. 2014), so that a seed in a message is enough to see a case again.
class SmallRandom {
public:
    explicit SmallRandom(std::uint64_t seed)
        : state_(seed)
    {
    }

    std::uint64_t next()
    {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    /// A number from 0 up to but not `limit`, which is not 0.
    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(next() % limit); }

    /// True in `share` of all cases, 0 to 1.
    bool chance(double share) { return static_cast<double>(next() >> 11U) < share * 0x1p53; }

private:
    std::uint64_t state_;
};

/// `length` bytes that follow from `seed` alone.
[[nodiscard]] inline std::string randomBytes(std::size_t length, std::uint64_t seed)
{
    SmallRandom random(seed);
    std::string bytes(length, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random.below(256));
    return bytes;
}

} // namespace quillmere::test
