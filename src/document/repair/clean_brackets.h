#pragma once

#include "document/text/edited_text.h"

namespace quillmere {

/// Cuts the character behind each '<' that another '<' follows ahead of the next '>'; then the same
/// for '>' ahead of '<'.
void thinOutBrackets(EditedText& text);

} // namespace quillmere
