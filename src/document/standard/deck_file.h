#pragma once

#include <string>

namespace quillmere {

/// The bytes of a deck file that is opened without loss. Throws FileFailure, and DeckTooLong, for
/// which no more of the file is read than may be.
[[nodiscard]] std::string readStandardFile(const std::string& path);

} // namespace quillmere
