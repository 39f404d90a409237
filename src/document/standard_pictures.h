#pragma once

#include "document/picture_entries.h"
#include "document/session.h"
#include "document/standard/design_tags.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quillmere {

/// The pictures of an area that is being opened: each gets its entry with size and alignment, and
/// its display copy. The session must outlive the result.
[[nodiscard]] PictureRoads picturesOf(DocumentSession& session, std::size_t areaIndex);

/// The way back: of a picture that stands in several areas the last one's name counts. Both must
/// outlive the result.
[[nodiscard]] PictureRoads pictureNames(DisplayCopyIndex& pictures, const Deck& deck);

/// The names of all pictures in a deck file, whatever its encoding and quotes.
[[nodiscard]] std::vector<std::string> picturesIn(const std::string& file);

} // namespace quillmere
