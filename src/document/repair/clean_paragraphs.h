#pragma once

#include "document/text/edited_text.h"

// The surface sets paragraphs as it likes: empty ones for empty lines, one behind the other without
// ends, ends without begins. A deck has them side by side, each with its end.

namespace quillmere {

/// Makes a line break of each empty paragraph that the surface filled with a hard blank.
void breakAtEmptyParagraphs(EditedText& text);

/// Drops paragraphs and breaks behind the area's last text and last element.
void dropTrailingParagraphs(EditedText& text);

/// Drops each paragraph end that another one follows with no begin between.
void dropDoubledParagraphEnds(EditedText& text);

/// Drops line breaks outside of paragraphs.
void dropLooseBreaks(EditedText& text);

} // namespace quillmere
