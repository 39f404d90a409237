#pragma once

#include "document/session.h"

#include <QStringList>

namespace quillmere {

/// What saving the open deck by the default rules would cost its file, as it stands on the disk: a
/// German line for each thing that would be lost or get another form. Empty where nothing would,
/// with standard output, and for a deck without a file. Nothing is written.
[[nodiscard]] QStringList costsOfSaving(const DocumentSession& session);

/// The same for the text of a deck in `deckDir`.
[[nodiscard]] QStringList costsOfSaving(
    const DocumentSession& session, const std::string& text, const std::string& deckDir);

} // namespace quillmere
