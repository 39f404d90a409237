#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// A deck file as a person edits its source, in UTF-8. Characters that a text field takes for
/// something else, such as U+2028, stand there as decimal references.
[[nodiscard]] std::string shownSource(const std::string& file);

/// The file after an edit of its source (UTF-8). Lines that are as they were keep their bytes and
/// their ends; the others are written in the encoding and with the line end of the file, with
/// decimal references for characters that the encoding has not. The last line ends as that of the
/// file did.
[[nodiscard]] std::string editedSource(const std::string& file, std::string_view shown);

} // namespace quillmere
