#pragma once

#include "picture_files.h"

namespace quillmere {

/// The picture that stands while the program starts: the mark, the name, a line of the display's
/// green.
void writeSplash(const BuilderPlaces& places);

/// The pictures of the assistant's choices, alike in all skins. Throws FileFailure.
void writeChoicePictures(const BuilderPlaces& places);

/// The program's icon: "Logo.ico" with all sizes in it and, for the desktops that take them, one
/// PNG file a size, in `directory` (with its separator).
void writeProgramIcon(const BuilderPlaces& places, const QString& directory);

} // namespace quillmere
