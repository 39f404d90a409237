#pragma once

#include "document/session.h"
#include "document/text/text_lines.h"

#include <cstddef>
#include <string>
#include <string_view>

// The text of an area's design work file, which is the truth while the area is edited.

namespace quillmere {

/// The record of an area. Throws InvalidArgument where the deck has no such area.
[[nodiscard]] DeckRecord& areaRecord(DocumentSession& session, std::size_t areaIndex);

/// The longest text of an area, by the rules that the deck was opened by.
[[nodiscard]] std::size_t maxDesignLength(const DocumentSession& session);

/// Lets events run until the surface is not busy. What they did to the session is then done.
void waitForSurface(DocumentSession& session);

/// The area's design work file with its lines joined, from the first '<' of its first line on.
/// Waits for the surface. Throws FileFailure.
[[nodiscard]] std::string ReadDesignText(DocumentSession& session, std::size_t areaIndex);

/// Writes the area's design work file as one piece. Waits for the surface.
/// Throws FileFailure, and Overflow for a text that is too long; the file is then as it was.
void WriteDesignText(DocumentSession& session, std::size_t areaIndex, std::string_view text);

} // namespace quillmere
