#pragma once

#include "document/wml/deck_bytes.h"
#include "document/wml/wml_mends.h"
#include "document/wml/wml_token.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

// The tree of a deck, however broken it is. What is well-formed and where the rules of WML allow it
// is taken as it stands; all else is mended by the rules of `wml_mends.h`, each mend is kept.

namespace quillmere {

inline constexpr std::uint32_t kNoNode = std::numeric_limits<std::uint32_t>::max();
inline constexpr std::uint32_t kNoToken = std::numeric_limits<std::uint32_t>::max();

struct WmlNode {
    enum class Kind : std::uint8_t { Element, Text, Other }; ///< Text: a word or a space
    Kind kind = Kind::Element;
    WmlElement element = WmlElement::Other;
    std::uint32_t start = kNoToken; ///< its tag, or itself; none: the document
    std::uint32_t end = kNoToken; ///< its end tag; none: an empty tag, or mended in
    std::uint32_t parent = kNoNode;
    std::uint32_t firstChild = kNoNode;
    std::uint32_t next = kNoNode; ///< sibling
};

struct WmlTree {
    std::vector<WmlToken> tokens; ///< as they came, behind them those of elements mended in
    std::vector<WmlNode> nodes; ///< parents ahead of their children; 0 is the document itself
    std::vector<WmlMend> mends; ///< in the order of the text
    std::deque<std::string> texts; ///< of mended tokens; they stay where they are

    /// What is written for a token. The text of a token that goes is empty. Valid as long as the
    /// tree and the deck's text.
    [[nodiscard]] std::string_view textOf(std::uint32_t token) const
    {
        const WmlToken& wanted = tokens[token];
        return wanted.mended == kNotMended ? wanted.source : std::string_view(texts[wanted.mended]);
    }
};

/// Makes the tree of a deck's tokens. No word is lost, whatever the tokens are. `deck` tells what
/// its characters are.
[[nodiscard]] WmlTree buildWmlTree(std::vector<WmlToken> tokens, const DeckBytes& deck);

/// The text of the tree: each token that needs no mend as its source, all else anew in the deck's
/// own manner (line ends, indentation, quotes). Always well-formed, and read again it has no mends.
[[nodiscard]] std::string writeWml(const WmlTree& tree, const DeckBytes& deck);

} // namespace quillmere
