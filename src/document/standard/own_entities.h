#pragma once

#include "document/wml/deck_bytes.h"
#include "document/wml/deck_entities.h"
#include "document/wml/wml_token.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

// References to entities that a deck declares itself.

namespace quillmere {

/// What the deck of these tokens may refer to.
[[nodiscard]] wml::DeckEntities entitiesOf(std::span<const WmlToken> tokens);

/// The tokens with each reference to an entity of the internal subset as a word of its own.
[[nodiscard]] std::vector<WmlToken> withOwnEntitiesApart(
    std::vector<WmlToken> tokens, const wml::DeckEntities& entities);

/// Such a reference as a design text has it: an atom `<!--#entity &amp;NAME; MEANING-->`, in which
/// the meaning is as declared and cut short; or, for one character, just that.
[[nodiscard]] std::string designEntity(
    std::string_view reference, std::string_view meaning, const DeckBytes& deck);

} // namespace quillmere
