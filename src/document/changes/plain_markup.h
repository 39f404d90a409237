#pragma once

#include "document/changes/markup_document.h"

#include <optional>
#include <string_view>

// The short way to say whether a deck is well-formed, for the shape that nearly all written decks
// have: ASCII, the head of WML 1.1, and behind it nothing but elements and text.

namespace quillmere {

/// What firstFault() says: the first fault, or that there is none.
struct MarkupVerdict {
    std::optional<MarkupFaultAt> fault;
};

/// The verdict on a deck of that shape whose elements nest, or where the first fault is that they
/// do not. nullopt where it takes the full reader to tell.
[[nodiscard]] std::optional<MarkupVerdict> verdictOnPlainMarkup(std::string_view text);

/// Whether each character is ASCII and none is one for control but white space.
[[nodiscard]] bool isPlainText(std::string_view text);

} // namespace quillmere
