#pragma once

#include "document/platform/directory_lock.h"
#include "document/session.h"
#include "program/recovery_note.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

// Decks of runs that did not end by themselves. Each run keeps its work files in a directory of its
// own below a common one; a note beside them tells which deck they are.

namespace quillmere {

/// What the deck itself does not tell of it.
struct NotedState {
    bool isChanged = false; ///< it differs from its file
    std::optional<SeenDeckFile> seen{}; ///< its file as it was read or written
    std::string sourcePath{}; ///< the work file of a source that is not taken over; "": none
};

/// Notes the deck in the directory of its work files. Replaces the note of before at once or not at
/// all. Throws FileFailure.
void writeRecoveryNote(const DocumentSession& session, const NotedState& state);

/// What a run left whose deck had changes that are in no other file.
struct CrashedRun {
    std::string directory; ///< with its separator
    RecoveryNote note;
    std::unique_ptr<DirectoryLock> lock; ///< keeps other starts off
};

/// The runs below `parent` that ended with changes, newest first. Those that ended without any are
/// removed; what belongs to others or to runs that still go on is left alone.
[[nodiscard]] std::vector<CrashedRun> takeCrashedRuns(const std::string& parent);

/// What another program did to the deck's file since the run saw it. What the run itself was about
/// to note, such as a save, is no change.
[[nodiscard]] DeckFileChange deckFileChange(const CrashedRun& run);

/// The text of the source view that was not taken over; nullopt where there is none.
[[nodiscard]] std::optional<std::string> sourceOf(const CrashedRun& run);

/// Makes the deck of a run's work files the open deck of `session`, its first area the current one.
/// It goes by the rules that it went by there, whatever the session's are.
/// The run's files stay. Throws FileFailure, and RuntimeFailure for areas that cannot be converted;
/// the session's deck is then as it was.
void openCrashedRun(DocumentSession& session, const CrashedRun& run);

/// Removes what a run left.
void discardCrashedRun(const CrashedRun& run);

} // namespace quillmere
