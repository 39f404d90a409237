#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// `text` as a JSON string (RFC 8259) with its quotes. Windows-1252 in and out, so that a whole
/// document is turned into UTF-8 at once.
[[nodiscard]] std::string jsonString(std::string_view text);

} // namespace quillmere
