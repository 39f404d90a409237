#pragma once

#include "picture_files.h"
#include "skin_tokens.h"

namespace quillmere {

/// Writes the main window's background and its tools' and buttons' pictures in one skin's colours.
/// There are no texts in them, so that they serve every language.
void writeEditorPictures(const BuilderPlaces& places, const SkinTokens& tokens);

/// The names of the files, as the records have them.
[[nodiscard]] QString windowPictureName(const SkinTokens& tokens);
[[nodiscard]] QString toolPictureName(const SkinTokens& tokens, std::string_view tool);
[[nodiscard]] QString navigationPictureName(const SkinTokens& tokens, std::string_view icon);

} // namespace quillmere
