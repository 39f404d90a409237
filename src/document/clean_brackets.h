#pragma once

#include <string>

namespace quillmere {

/// Cuts the character behind each '<' that another '<' follows ahead of the next '>'; then the same
/// for '>' ahead of '<'.
void thinOutBrackets(std::string& text);

} // namespace quillmere
