#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// A deck file as a person edits its source: in Windows-1252, with decimal references for what that
/// has not.
[[nodiscard]] std::string shownSource(const std::string& file);

/// The file after an edit of its source. Lines that are as they were keep their bytes and their
/// ends; the others are written in the encoding and with the line end of the file. The last line
/// ends as that of the file did.
[[nodiscard]] std::string editedSource(const std::string& file, std::string_view shown);

} // namespace quillmere
