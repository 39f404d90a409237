#pragma once

#include "document/standard/deck_manner.h"
#include "document/standard/design_tags.h"

#include <span>
#include <string>
#include <string_view>

// Tags of a deck written anew.

namespace quillmere {

/// The tag `source` with what changed between its attributes as they were shown and as they are
/// now: what is the same stays as it is written, new ones come last.
[[nodiscard]] std::string changedTag(std::string_view source, WmlElement element,
    std::span<const DeckAttribute> then, std::span<const DeckAttribute> now, const DeckBytes& deck,
    const DeckManner& manner);

/// A new tag. Attributes that are the surface's alone are left out, and so is a card's empty id or
/// title.
[[nodiscard]] std::string newTag(std::string_view name, WmlElement element,
    std::span<const DeckAttribute> attributes, bool isEmptyTag, const DeckBytes& deck,
    const DeckManner& manner);

/// <p align="left"/> as <p align="left">.
[[nodiscard]] std::string openedTag(std::string_view emptyTag);

} // namespace quillmere
