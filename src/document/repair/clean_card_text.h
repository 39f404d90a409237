#pragma once

#include "document/text/edited_text.h"

namespace quillmere {

/// Closes paragraphs without end at the card's end.
void closeLastParagraph(EditedText& text);

/// Gives a card without paragraph one: around all of its content where text stands in it outside
/// of tables and lists, else an empty one.
void ensureParagraph(EditedText& text);

/// Puts a paragraph around text between the last paragraph and the card's end.
void wrapTrailingText(EditedText& text);

} // namespace quillmere
