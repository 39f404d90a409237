#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// Breaks a generated deck into lines, in place.
void BreakWmlLines(std::string& text);

/// Gives the gaps between tags of a generated deck the white space that they had in `pristine`, as
/// far as the tags match. In place.
void RestoreWhitespace(std::string& text, std::string_view pristine);

} // namespace quillmere
