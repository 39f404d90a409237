#pragma once

#include "document/changes/deck_changes.h"

#include <string>
#include <string_view>

namespace quillmere {

/// One change as a German line, such as: Verloren: <do type="prev"> (Zeile 12, Spalte 3).
/// Places are those in the deck that was read unless the line says otherwise. Windows-1252.
[[nodiscard]] std::string describeChange(const DeckChange& change);

/// What keeps a written deck from being well-formed, with its place, as a German sentence.
/// Windows-1252.
[[nodiscard]] std::string describeFault(const DeckFault& fault);

/// The report on a deck as German text in UTF-8: each change on a line, a table of how often each
/// name is concerned, and whether the written deck is well-formed and stable. `deckName` is
/// UTF-8 and heads the text.
[[nodiscard]] std::string textReport(const DeckChangesReport& report, std::string_view deckName);

} // namespace quillmere
