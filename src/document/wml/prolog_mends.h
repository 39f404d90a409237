#pragma once

#include "document/wml/token_mends.h"

// The XML declaration and the document type, where they are not what XML 1.0 (2.8, 4.3.3) allows.

namespace quillmere::wml {

/// `isFirst`: the deck begins with it, so that its encoding holds. nullopt where it is right.
[[nodiscard]] std::optional<MendedToken> mendXmlDeclaration(
    std::string_view source, const DeckBytes& deck, bool isFirst);

/// One that cannot be read becomes that of WML in the version that it tells, 1.1 if none.
[[nodiscard]] std::optional<MendedToken> mendDoctype(
    std::string_view source, const DeckBytes& deck);

} // namespace quillmere::wml
