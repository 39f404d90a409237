#pragma once

#include "document/changes/markup_document.h"

#include <string>
#include <string_view>

namespace quillmere {

/// What keeps a text from being well-formed, as a German sentence without its full stop such as
/// "Das Element <b> hat kein Ende". `name` and the sentence are Windows-1252.
[[nodiscard]] std::string describeFault(MarkupFault fault, std::string_view name);

} // namespace quillmere
