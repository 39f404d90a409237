#pragma once

#include "document/changes/deck_changes.h"

#include <string>
#include <string_view>

namespace quillmere {

/// The report on a deck as one JSON object (RFC 8259) in UTF-8, each change and each row of the
/// summary on a line of its own, without a line break at the end. `deckName` is UTF-8; bytes in it
/// that are none are read as Windows-1252.
///
///     {"deck": NAME, "wellFormed": BOOL, "fault": null or {"reason", "line", "column"},
///      "stable": null or BOOL,
///      "summary": [{"subject", "name", "lost", "added", "changed", "moved"}],
///      "changes": [{"kind", "subject", "element", "attribute" of an attribute, "before", "after",
///                   "count", "readAt": [LINE, COLUMN], "writtenAt": [LINE, COLUMN]}]}
///
/// What a change has not, such as the place in the written deck of what is lost, is left out.
[[nodiscard]] std::string jsonReport(const DeckChangesReport& report, std::string_view deckName);

} // namespace quillmere
