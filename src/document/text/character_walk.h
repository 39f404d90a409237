#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

// The places of one character in a text, 64 characters at a time. All is inline, since it is asked
// for every tag of every text.

namespace quillmere {

/// As many characters as a number has bits.
using CharacterBlock = std::array<char, 64>;

namespace character_marks {

/// Which characters are the one that is wanted: one bit for each, the lowest for the first.
[[nodiscard]] constexpr std::uint64_t portable(const char* block, char wanted)
{
    std::uint64_t marks = 0;
    for (std::size_t i = 0; i < sizeof(CharacterBlock); ++i)
        marks |= static_cast<std::uint64_t>(block[i] == wanted) << i;
    return marks;
}

/// The same in as few steps as the processor needs.
[[nodiscard]] inline std::uint64_t of(const char* block, char wanted)
{
#ifdef __SSE2__
    constexpr std::size_t kLane = sizeof(__m128i);
    const auto wantedInAll = _mm_set1_epi8(wanted);
    std::uint64_t marks = 0;
    for (std::size_t i = 0; i < sizeof(CharacterBlock); i += kLane) {
        const auto lane = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + i));
        const auto bits
            = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(lane, wantedInAll)));
        marks |= static_cast<std::uint64_t>(bits) << i;
    }
    return marks;
#else
    return portable(block, wanted);
#endif
}

/// The same of the block that a text begins with, or of a shorter text. `wanted` is no zero.
[[nodiscard]] inline std::uint64_t in(std::string_view text, char wanted)
{
    if (text.size() >= sizeof(CharacterBlock)) return of(text.data(), wanted);
    CharacterBlock block{};
    text.copy(block.data(), text.size());
    return of(block.data(), wanted);
}

} // namespace character_marks

/// Walks the places of one character in a text from left to right, which costs less than a search
/// from each place on where they are as close as those of tags. The text must outlive the walk and
/// stay as it is.
class CharacterWalk {
public:
    /// `wanted` is no zero.
    CharacterWalk(std::string_view text, char wanted)
        : text_(text)
        , wanted_(wanted)
    {
    }
    /// The next place; npos where none is left.
    [[nodiscard]] std::size_t next()
    {
        while (marks_ == 0) {
            if (block_ >= text_.size()) return std::string_view::npos;
            readBlock();
        }
        const auto bit = static_cast<std::size_t>(std::countr_zero(marks_));
        marks_ &= marks_ - 1; // without its lowest bit
        return block_ - kBlock + bit;
    }
    /// The next place at or behind `from`, which may not go back ahead of the last place.
    [[nodiscard]] std::size_t nextFrom(std::size_t from)
    {
        if (from >= block_ + kBlock) {
            block_ = from - from % kBlock;
            marks_ = 0;
        }
        auto place = next();
        while (place < from)
            place = next();
        return place;
    }

private:
    static constexpr std::size_t kBlock = sizeof(CharacterBlock);

    void readBlock()
    {
        marks_ = character_marks::in(text_.substr(block_), wanted_);
        block_ += kBlock;
    }

    std::string_view text_;
    std::size_t block_ = 0; // the next one
    std::uint64_t marks_ = 0; // the places of the last one that are left
    char wanted_;
};

} // namespace quillmere
