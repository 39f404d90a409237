#pragma once

#include "document/session.h"

#include <QStringList>

#include <string>

namespace quillmere {

/// What was mended in the open deck as it stands in the WML work file, compared with the deck as
/// it was opened: a row for each mend, with its line there. Empty where that is the deck as opened,
/// or one that does not go without loss.
[[nodiscard]] QStringList mendsMade(const DocumentSession& session);

/// The mends of a deck file of these bytes.
[[nodiscard]] QStringList mendsOfFile(const std::string& file);

} // namespace quillmere
