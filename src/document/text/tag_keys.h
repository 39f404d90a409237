#pragma once

#include "document/text/tag_code.h"

#include <algorithm>
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
        std::size_t end = 1; // behind the row of no key
        for (std::size_t bucket = 0; bucket < first_.size(); ++bucket) {
            const auto begin = end;
            for (std::size_t i = 0; i < count; ++i) {
                const SearchKey key = std::invoke(keyOf, rows[i]);
                if (!key.pattern.isWhole) throw std::invalid_argument("not told by its code");
                if (bucketOf(key.pattern.wanted) == bucket) entries_[end++] = {key.pattern, i};
            }
            if (end == begin) continue;
            longest_ = std::max(longest_, end - begin);
            first_[bucket] = static_cast<std::uint8_t>(begin);
            ++end; // the entry that ends it
        }
    }

    /// The index of the first key that fits; `count` where none does. No branch depends on the tag,
    /// since what kind the next one is of cannot be foreseen.
    [[nodiscard]] constexpr std::size_t find(TagCode code) const
    {
        std::size_t at = first_[bucketOf(code)];
        for (std::size_t step = 0; step < longest_; ++step)
            at += entries_[at].pattern.fits(code) ? 0 : 1;
        return entries_[at].index;
    }

private:
    static constexpr std::size_t bucketOf(TagCode code)
    {
        return (code & 31U) | code >> 8 * tag_code::kLetters << 5U;
    }

    struct Entry {
        TagPattern pattern; // as it is made here every code fits
        std::size_t index = count;
    };
    // Each bucket has one that every code fits as its end.
    std::array<Entry, 2 * count + 1> entries_{};
    std::array<std::uint8_t, 4 * 32> first_{}; // the first entry of each bucket
    std::size_t longest_ = 0; // number of keys in a bucket
    static_assert(2 * count < 0x100);
};

} // namespace quillmere
