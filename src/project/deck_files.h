#pragma once

#include "forms/session.h"

#include <optional>
#include <string>

// The open deck as a file: new, opened, saved. Names and directories are bytes of the file system.
// All of them work through the main window (Session::window), which must be there. Whatever fails
// leaves the open deck, its file and its unsaved changes as they were.

namespace quillmere {

[[nodiscard]] bool isDeckOpen(const Session& session);

/// Makes way for another deck: the main window asks whether changes are to be saved. The deck stays
/// until the other one stands in its place. Throws as the save does.
void ClearDeck(Session& session);

/// Starts a deck of one empty area under the name, whose end becomes ".wml"; an existing file of
/// that name is deleted if the person assents. The deck has no file until it is saved, and counts
/// as changed. False where nothing was done: an empty name, or no assent.
/// Throws FileFailure where the deck could not be saved there later.
bool CreateNewPage(Session& session, const std::string& name, const std::string& directory);

/// Opens the deck and shows its first area. Throws FileFailure for a file that is not there, cannot
/// be read or is no text, and RuntimeFailure for a deck that is too long or cannot be converted.
/// The deck goes by `rules`; without them by the setting, as does the next one. One that only the
/// default cannot open is offered to be opened without loss; false where that is not wanted.
bool OpenDocument(Session& session, const std::string& name, const std::string& directory,
    std::optional<OutputRules> rules = {});

/// Saves the deck under a name and goes on with it there. Its pictures are copied along; the old
/// file stays. A deck without changes is copied byte for byte. At its own place the deck is just
/// saved, whatever its name. False where nothing was saved: a bad name, which is told, or no assent
/// to replace another file. Throws FileFailure and what the save throws.
bool SaveProjectAs(Session& session, const std::string& name, const std::string& directory);

/// Saves the open deck to its file.
void SaveCurrentDeck(Session& session);

} // namespace quillmere
