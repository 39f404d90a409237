#pragma once

#include "document/text/edited_text.h"

namespace quillmere {

/// Drops the option ends ahead of the first option.
void dropEarlyOptionEnds(EditedText& text);

/// Gives each option its end and drops the ends that are left over behind the last one.
/// Throws InvalidArgument where an end stands behind the next option and no list end follows.
void completeOptions(EditedText& text);

/// Opens a list ahead of the first option where none is opened.
void openSelect(EditedText& text);

/// Closes a list behind the last option's end where none is closed.
void closeSelect(EditedText& text);

/// Drops the markers of lists without options.
void dropEmptySelects(EditedText& text);

} // namespace quillmere
