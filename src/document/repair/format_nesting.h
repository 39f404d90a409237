#pragma once

#include <string>
#include <string_view>

// Repairs of format elements that lost an end or overlap. Tags are given whole, as "<b>" and
// "</b>", in lower case; searches ignore case; all work in place and throw Overflow for a text
// that is longer than positions can tell.

namespace quillmere {

/// Repairs each of the pairs strong, i, u, big and small by itself. The pairs b and em stay as they
/// are, broken or not.
void RepairNesting(std::string& text);

/// Removes the ends ahead of the first beginning, the beginnings inside of an element that has
/// begun, and the beginnings with no end behind them: "</i>a<i>b<i>c</i>d<i>" becomes
/// "a<i>bc</i>d". An end too many behind an element stays.
void RepairOnePair(std::string& text, std::string_view openTag, std::string_view closeTag);

/// Makes overlapping formats nest, for all pairs of big, small, i, b and u.
void RepairFormatNesting(std::string& text);

/// Makes the elements A and B nest where one begins inside the other and ends behind it: the end
/// that comes second moves in front of the first. "<b>x<i>y</b>z</i>" becomes "<b>x<i>y</i></b>z".
void RepairOverlap(std::string& text, std::string_view openA, std::string_view closeA,
    std::string_view openB, std::string_view closeB);

} // namespace quillmere
