#pragma once

#include <string>
#include <string_view>

// Repairs of format elements that lost an end or overlap. Tags are given as "<b>" and "</b>" in
// lower case; searches ignore case; all work in place.

namespace quillmere {

/// Removes ends without beginning, beginnings without end and nested beginnings of the formats.
void RepairNesting(std::string& text);

/// The same for one pair.
void RepairOnePair(std::string& text, std::string_view openTag, std::string_view closeTag);

/// Makes overlapping formats nest, for all pairs of formats.
void RepairFormatNesting(std::string& text);

/// Makes the elements A and B nest where one begins inside the other and ends behind it.
void RepairOverlap(std::string& text, std::string_view openA, std::string_view closeA,
    std::string_view openB, std::string_view closeB);

} // namespace quillmere
