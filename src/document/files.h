#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// The bytes of a file. Throws FileFailure for what is missing, a directory or unreadable.
[[nodiscard]] std::string readFile(const std::string& path);

[[nodiscard]] bool fileExists(const std::string& path);

/// Replaces a file of the person by `bytes`, or makes it: written beside it, checked to be whole,
/// flushed to disk and renamed over it, then the directory is flushed. Mode and owner are kept and a
/// symbolic link is followed. Throws FileFailure; the old file is then as it was.
void replaceFile(const std::string& path, std::string_view bytes);

} // namespace quillmere
