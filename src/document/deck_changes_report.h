#pragma once

#include "document/deck_changes.h"

#include <optional>
#include <string>

namespace quillmere {

/// What is told of one deck.
struct DeckReport {
    std::string deckName; ///< UTF-8
    DeckChangesReport changes;
    /// Whether a further repair of the written deck would change it again; nothing where nobody
    /// has tried.
    std::optional<bool> changesAgain;
};

/// One change as a German line, such as: Verloren: <do type="prev"> (Zeile 12, Spalte 3).
/// Places are those in the deck that was read unless the line says otherwise. Windows-1252.
[[nodiscard]] std::string describeChange(const DeckChange& change);

/// The report as German text in UTF-8, ending in a line break: the deck's name, each change on a
/// line, a table of how often each name is concerned, and whether the written deck is well-formed
/// and would change again.
[[nodiscard]] std::string textReport(const DeckReport& report);

/// The report as one JSON object (RFC 8259) in UTF-8, each change and each row of the summary on a
/// line of its own, without a line break at the end:
///
///     {"deck": NAME, "wellFormed": BOOL, "fault": null or {"reason", "line", "column"},
///      "changesAgain": null or BOOL,
///      "summary": [{"subject", "name", "lost", "added", "changed", "moved"}],
///      "changes": [{"kind", "subject", "element", "attribute" of an attribute, "before", "after",
///                   "count", "readAt": [LINE, COLUMN], "writtenAt": [LINE, COLUMN]}]}
///
/// What a change has not, such as the place in the written deck of what is lost, is left out.
[[nodiscard]] std::string jsonReport(const DeckReport& report);

} // namespace quillmere
