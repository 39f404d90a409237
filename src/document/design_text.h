#pragma once

#include "document/session.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quillmere {

/// The lines of a text file; a line ends at CR LF, LF or CR.
[[nodiscard]] std::string joinLines(std::string_view text);

/// The area's design work file with its lines joined, from the first '<' of its first line on.
/// Waits for the surface.
[[nodiscard]] std::string ReadDesignText(DocumentSession& session, std::size_t areaIndex);

/// Writes the area's design work file as one piece. Waits for the surface.
void WriteDesignText(DocumentSession& session, std::size_t areaIndex, std::string_view text);

} // namespace quillmere
