#pragma once

#include "document/wml/wml_tree.h"

namespace quillmere::wml {

/// Writes the texts and mends of the tree's tokens that are not right by themselves: characters,
/// references, tags, comments, declarations, doubled ids. A token that goes becomes white space
/// without text; a tag that is none becomes a word.
void mendTokens(WmlTree& tree, const DeckBytes& deck);

/// The offset of a token in the text of the deck; nullopt for one that is not of it.
[[nodiscard]] std::optional<std::size_t> offsetIn(const DeckBytes& deck, const WmlToken& token);

/// Gives a token another text.
void setText(WmlTree& tree, std::uint32_t token, std::string text);

} // namespace quillmere::wml
