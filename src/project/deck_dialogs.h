#pragma once

#include "forms/session.h"

#include <string_view>

// The file dialogs for decks. Each ends in an operation of deck_files.h and throws what that one
// throws; false where the person cancelled, and all is then as it was. A name that is refused is
// told, and the dialog comes again.

namespace quillmere {

/// The setting that keeps the last project directory.
inline constexpr std::string_view kLastDeckPath = "LastPath1";

/// The folder that dialogs for decks begin in, without a separator at its end.
[[nodiscard]] QString lastDeckFolder(const Session& session);

bool OpenDeckDialog(Session& session);
bool SaveDeckAsDialog(Session& session);
/// Proposes "index.wml" where the folder has none.
bool NewDeckDialog(Session& session);

} // namespace quillmere
