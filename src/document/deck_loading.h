#pragma once

#include "document/deck_replacement.h"
#include "document/deck_store.h"
#include "document/session.h"

#include <cstdint>
#include <string>
#include <string_view>

// What all ways of opening a deck have in common: its records, their work files, and the page
// around the content of a card.

namespace quillmere {

/// Writes `text` to a new work file for decks and returns its name.
std::string writeWorkCopy(WorkFiles& files, std::string text);

/// Begins the session's deck anew, with record 0 and a spare one.
DeckRecord& beginDeck(
    DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind);
/// Makes the spare record an area with a new spare one behind it.
void useSpareRecord(DocumentSession& session);

/// The text of the work file that the location names.
[[nodiscard]] std::string readWorkFile(
    const DocumentSession& session, const DeckLocation& location);
/// Names the deck as generated: the work file that the location names, which is neither deck's to
/// remove, or else a new one of `text`.
void nameWmlFile(DocumentSession& session, DeckReplacement& replacement,
    const DeckLocation& location, std::string text);

/// The page around the content of a card. Its own paragraph is left out, since the card brings its
/// paragraphs with it.
struct DesignFrame {
    std::string head;
    std::string tail;
};
[[nodiscard]] DesignFrame frameOf(DocumentSession& session);

/// The design work file of a card: marker, do block, and the body in one line within the frame.
[[nodiscard]] std::string designFileOf(std::string_view marker, std::string_view doBlock,
    const DesignFrame& frame, std::string_view body);

// The two roads. What goes in and what is thrown tells LoadDeck (deck_store.h).

/// By the conversions.
void loadConvertedDeck(
    DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind);
/// Without loss.
void loadStandardDeck(
    DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind);

} // namespace quillmere
