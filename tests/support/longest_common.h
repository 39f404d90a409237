#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quillmere::test {

/// The length of the longest common part of two lists, by the table of all their beginnings.
template <class Value>
std::size_t longestCommonPart(const std::vector<Value>& one, const std::vector<Value>& other)
{
    std::vector<std::size_t> row(other.size() + 1);
    for (const auto& value : one) {
        std::size_t diagonal = 0;
        for (std::size_t i = 0; i < other.size(); ++i) {
            const auto above = row[i + 1];
            row[i + 1] = value == other[i] ? diagonal + 1 : std::max(above, row[i]);
            diagonal = above;
        }
    }
    return row.back();
}

} // namespace quillmere::test
