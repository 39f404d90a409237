#pragma once

#include <QString>

#include <string>
#include <string_view>

// The border between the core, whose texts are Windows-1252 and whose paths are bytes of the file
// system, and the windows, which speak Unicode.

namespace quillmere {

/// A text of the core as a window shows it.
[[nodiscard]] QString shownText(std::string_view text);
/// A text from a window for the core. What Windows-1252 has not becomes a numeric character
/// reference.
[[nodiscard]] std::string coreText(const QString& text);

/// A path of the core as a window shows it, and back.
[[nodiscard]] QString shownPath(std::string_view path);
[[nodiscard]] std::string corePath(const QString& path);

} // namespace quillmere
