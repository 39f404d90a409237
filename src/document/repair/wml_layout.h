#pragma once

#include <string>
#include <string_view>

// The lines of a generated deck. Both operations work in place and throw Overflow, with the text
// unchanged, where it is or gets longer than positions can tell.

namespace quillmere {

/// Breaks a generated deck into lines, from its "<wml" on: CR LF ahead of tags, but not of breaks,
/// cells and most formats. No line is indented.
void BreakWmlLines(std::string& text);

/// Gives the gaps between tags of a generated deck the white space that they had in `pristine`, as
/// far as the tags match by their first three characters. The pristine text may have any length.
void RestoreWhitespace(std::string& text, std::string_view pristine);

} // namespace quillmere
