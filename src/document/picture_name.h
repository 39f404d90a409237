#pragma once

#include <string>

namespace quillmere {

/// The name that the file of the picture `name` of a deck has in `directory`. A deck names it in
/// Windows-1252, or with references such as "&#228;" where it was written by the standard rules,
/// while the disk mostly has it in UTF-8: "b&#228;r.wbmp" is "bär.wbmp". Where there is a file with
/// the very bytes of the name it is that one.
[[nodiscard]] std::string nameOnDisk(const std::string& directory, const std::string& name);

} // namespace quillmere
