#pragma once

#include "document/text/edited_text.h"

namespace quillmere {

/// Mends the area's first do block: one without a target or without its end goes, as far as it can
/// be made out.
void dropBrokenDoBlock(EditedText& text);

/// Puts the do blocks, from the first one's begin to the last one's end, behind all else, and the
/// card's end behind them.
void closeCard(EditedText& text);

} // namespace quillmere
