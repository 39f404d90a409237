#pragma once

#include "document/session.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace quillmere {

/// One kind of thing that saving would cost a deck, as a person knows it.
struct DeckCost {
    QString name; ///< "Eingabefelder <input>"
    std::size_t count = 0; ///< 0: `name` says all
    QStringList examples; ///< the first ones, with their lines
};
using DeckCosts = std::vector<DeckCost>;

/// What saving the open deck by the default rules would cost its file, as it stands on the disk:
/// all that would be lost or get another form, what is lost most first. Empty where nothing would,
/// with standard output, and for a deck without a file. Nothing is written.
[[nodiscard]] DeckCosts costsOfSaving(const DocumentSession& session);

/// The same for the text of a deck in `deckDir`.
[[nodiscard]] DeckCosts costsOfSaving(
    const DocumentSession& session, const std::string& text, const std::string& deckDir);

} // namespace quillmere
