#pragma once

#include "document/text/edited_text.h"

// The surface sets paragraphs as it likes: empty ones for empty lines, one behind the other without
// ends, ends without begins. A deck has them side by side, each with its end.

namespace quillmere {

/// Makes a line break of each empty paragraph that the surface filled with a hard blank.
void breakAtEmptyParagraphs(EditedText& text);

/// Of paragraphs that begin with no end between leaves one, the aligned one where there is one;
/// drops those without any end behind them.
void mergeParagraphRuns(EditedText& text);

/// Drops paragraphs and breaks behind the area's last text and last element.
void dropTrailingParagraphs(EditedText& text);

/// Melts neighbouring paragraphs without alignment into one.
void mergePlainParagraphs(EditedText& text);

/// Drops each paragraph end that another one follows with no begin between.
void dropDoubledParagraphEnds(EditedText& text);

/// Closes paragraphs without end at the card's end.
void closeLastParagraph(EditedText& text);

/// Gives a card without paragraph one: around all of its content where text stands in it outside
/// of tables and lists, else an empty one.
void ensureParagraph(EditedText& text);

/// Puts a paragraph around text between the last paragraph and the card's end.
void wrapTrailingText(EditedText& text);

/// Drops line breaks outside of paragraphs.
void dropLooseBreaks(EditedText& text);

} // namespace quillmere
