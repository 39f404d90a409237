#pragma once

#include "document/text/edited_text.h"

namespace quillmere {

/// Of paragraphs that begin with no end between leaves one, the aligned one where there is one;
/// drops those without any end behind them.
void mergeParagraphRuns(EditedText& text);

/// Melts neighbouring paragraphs without alignment into one.
void mergePlainParagraphs(EditedText& text);

} // namespace quillmere
