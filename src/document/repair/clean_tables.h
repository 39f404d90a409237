#pragma once

#include "document/text/edited_text.h"

namespace quillmere {

/// Takes paragraphs out of tables, leaving line breaks, and text out from between rows. A table
/// without an end is closed behind its last row.
void settleTables(EditedText& text);

} // namespace quillmere
