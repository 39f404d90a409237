#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quillmere::test {

/// The length of the longest common part of two lists, by the table of all their beginnings.
template <class Value>
std::size_t longestCommonPart(const std::vector<Value>& first, const std::vector<Value>& second)
{
    std::vector<std::size_t> row(second.size() + 1);
    for (const auto& value : first) {
        std::size_t diagonal = 0;
        for (std::size_t i = 0; i < second.size(); ++i) {
            const auto above = row[i + 1];
            row[i + 1] = value == second[i] ? diagonal + 1 : std::max(above, row[i]);
            diagonal = above;
        }
    }
    return row.back();
}

} // namespace quillmere::test
