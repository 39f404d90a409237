#pragma once

#include "document/design_page.h"
#include "document/session.h"
#include "document/wml/wml_mends.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The deck's areas and their work files: new areas, loading, writing.

namespace quillmere {

/// Where a deck is read from. `workFile` may be empty; else it names the generated deck that is
/// read in place of the deck file.
struct DeckLocation {
    std::string deckFile;
    std::string deckDir;
    std::string workFile;
    std::string workDir;
};

/// Adds an area at the end, or starts a new deck with its first one, and links the area ahead of
/// it forward. A deck that was open before goes with its work files.
/// Throws FileFailure, Overflow where no name or no room for the link is left, and InvalidArgument
/// for a further area where no deck is open. A link that cannot be set leaves the area in place.
void AddArea(DocumentSession& session, bool isFirst, const std::string& deckFile = {},
    const std::string& deckDir = {});

/// Replaces the session's deck by the one at `location`: one area for each card, each with its
/// design work file. Any text gives at least one area. The old deck's work files are removed but
/// for its pristine copy, which the new deck takes over; without loss that gets one of its own.
/// Throws FileFailure, and RuntimeFailure for a deck that is too long or cannot be converted; the
/// session's deck is then as it was.
void LoadDeck(DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind = 0);

/// Whether the open deck goes without loss, which is decided when it is opened or begun.
[[nodiscard]] bool losesNothing(const DocumentSession& session);

/// What was mended in the open deck if it goes without loss. Its file is as it was, and stays so
/// until a save writes the deck mended, which only that of a changed deck does.
[[nodiscard]] const std::vector<WmlMend>& standardMends(const DocumentSession& session);

/// Generates the deck out of its areas and writes it to the WML work file of record 0.
/// Throws like LoadDeck, and InvalidArgument where no deck is open; the file is then as it was.
void WriteDeck(DocumentSession& session);

/// Waits for the surface and has it save the area's design work file.
void SaveSurface(DocumentSession& session, std::size_t areaIndex);

/// Puts a state at the end of the area's list, of which the last 16 are kept. A negative index
/// means the current area.
void PushUndo(DocumentSession& session, int areaIndex, std::string state);

} // namespace quillmere
