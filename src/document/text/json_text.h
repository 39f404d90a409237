#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// `text` as a JSON string (RFC 8259) with its quotes. Characters beyond ASCII stay as they are, be
/// they UTF-8 or Windows-1252; a document of the latter is turned into UTF-8 at once, when whole.
[[nodiscard]] std::string jsonString(std::string_view text);

} // namespace quillmere
