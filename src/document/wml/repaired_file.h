#pragma once

#include "document/wml/wml_mends.h"

#include <string>
#include <vector>

namespace quillmere {

struct RepairedFile {
    std::string bytes; ///< of a well-formed deck; those that came in where nothing was to be mended
    std::vector<WmlMend> mends; ///< in Windows-1252; places are offsets in the text of the deck
};

/// Mends a deck file of any bytes. Throws DeckTooLong.
[[nodiscard]] RepairedFile repairFile(std::string bytes);

} // namespace quillmere
