#pragma once

#include "document/text/tag_code.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <stdexcept>

namespace quillmere {

/// Tells which of the keys of a table a tag begins with, by its code alone. Only the few keys are
/// compared that share the tag's first letter and marks.
template <std::size_t count> class TagKeys {
public:
    /// The keys are `keyOf(row)` of the first rows, each with a name of one to seven characters.
    template <typename Row, std::size_t rowCount, typename KeyOf = std::identity>
    consteval explicit TagKeys(const Row (&rows)[rowCount], KeyOf keyOf = {})
    {
        first_.fill(static_cast<std::uint8_t>(count));
        for (std::size_t i = count; i-- > 0;) {
            const SearchKey key = std::invoke(keyOf, rows[i]);
            if (!key.pattern.isWhole) throw std::invalid_argument("not told by its code");
            auto& first = first_[bucket(key.pattern.wanted)];
            entries_[i] = {key.pattern, first};
            first = static_cast<std::uint8_t>(i);
        }
    }

    /// The index of the first key that fits; `count` where none does.
    [[nodiscard]] constexpr std::size_t find(TagCode code) const
    {
        std::size_t i = first_[bucket(code)];
        while (i < count && !entries_[i].pattern.fits(code))
            i = entries_[i].next;
        return i;
    }

private:
    static_assert(count < 0x100);

    static constexpr std::size_t bucket(TagCode code)
    {
        return (code & 31U) | code >> 8 * tag_code::kLetters << 5U;
    }

    struct Entry {
        TagPattern pattern;
        std::uint8_t next = 0; // of the same bucket
    };
    std::array<Entry, count> entries_{};
    std::array<std::uint8_t, 4 * 32> first_{};
};

} // namespace quillmere
