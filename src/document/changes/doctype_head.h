#pragma once

#include "document/changes/markup_cursor.h"

namespace quillmere {

/// Passes over what stands behind "<!DOCTYPE", where the cursor is, and ahead of '[' or '>': the
/// name, where the type's file lies, white space. A literal of it may hold any character. False
/// where something else is there; the cursor is then anywhere.
[[nodiscard]] bool passDoctypeHead(MarkupCursor& in);

} // namespace quillmere
