#pragma once

#include <string>
#include <vector>

namespace quillmere::test {

/// The rows of a file in tests/data/rows. Each field has a line of its own, and an empty line
/// stands between two rows; a line that begins with '#' is a remark, and a line of two quotes an
/// empty field. "\n", "\r", "\t", "\\" and "\xE4" mean what they do in C++.
[[nodiscard]] std::vector<std::vector<std::string>> rowsOf(const std::string& file);

} // namespace quillmere::test
