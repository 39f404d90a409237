#pragma once

#include <string>

namespace quillmere {

/// Leaves one '<' ahead of each '>', and one '>' ahead of each '<', cutting what stands between
/// the first and the last of them.
void mergeDoubledBrackets(std::string& text);

} // namespace quillmere
