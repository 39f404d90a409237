#pragma once

#include "document/text/edited_text.h"

// The two sweeps over a format whose elements must stay within paragraphs. Tags are given whole.
// Both work in place and throw Overflow where the text gets longer than positions can tell.

namespace quillmere {

/// Ends an element that crosses a paragraph's end there and begins it again in the next paragraph.
/// Without a next paragraph the element stays as it is.
void splitCrossingFormats(EditedText& text, const SearchKey& open, const SearchKey& close);

/// Deletes the tags of elements that hold tags and blanks only; what is in them stays.
void dropFormatsWithoutText(EditedText& text, const SearchKey& open, const SearchKey& close);

} // namespace quillmere
