#pragma once

#include "document/session.h"

#include <string>

namespace quillmere {

/// Loads the deck `text` into the session and writes it again, as opening and saving a file with
/// this text in `deckDir` would. Nothing but pictures is read from the disk and nothing written.
/// Returns the written deck. Throws like LoadDeck and WriteDeck.
[[nodiscard]] std::string repairedDeck(
    DocumentSession& session, const std::string& text, const std::string& deckDir = {});

} // namespace quillmere
