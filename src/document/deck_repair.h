#pragma once

#include "document/session.h"

#include <string>

namespace quillmere {

/// Loads the deck `text` into the session and writes it again, as opening and saving a file with
/// this text in `deckDir` would, and returns the written deck. Nothing but pictures is read from
/// the disk; what is written are the work files of the session, whose open deck is replaced. Throws
/// FileFailure for work files that cannot be made or written, Overflow for a deck, or a card in it,
/// that is or becomes longer than 32767 characters, and InvalidArgument and TypeMismatch for one
/// that cannot be converted, such as a value without its closing quote. The deck that was open is
/// then gone all the same.
/// Where nothing is lost, the deck is mended as repairFile() does it and the session stays as it
/// is; all that is thrown then is DeckTooLong.
[[nodiscard]] std::string repairedDeck(
    DocumentSession& session, const std::string& text, const std::string& deckDir = {});

} // namespace quillmere
