#pragma once

#include "document/wml/character_mends.h"
#include "document/wml/wml_token.h"

#include <optional>
#include <string>
#include <vector>

// What a token should be that is not right in itself or in its deck.

namespace quillmere::wml {

/// A fault within a token: what was written there, and what is written in its place.
struct TokenFault {
    MendRule rule = MendRule::BrokenTag;
    std::string before;
    std::string after;
};

struct MendedToken {
    std::string text; ///< "": it goes
    std::vector<TokenFault> faults;
    bool isWord = false; ///< a tag that is none: text now
};

class TokenMender {
public:
    /// Both must outlive it.
    TokenMender(const DeckBytes& deck, const DeckEntities& entities);
    /// nullopt for a token that is right. The XML declaration and the document type are not asked.
    [[nodiscard]] std::optional<MendedToken> mend(const WmlToken& token) const;

private:
    [[nodiscard]] MendedToken mendedWord(const WmlToken& word) const;
    [[nodiscard]] MendedToken mendedTag(const WmlToken& tag) const;
    [[nodiscard]] MendedToken mendedEnd(const WmlToken& tag) const;
    [[nodiscard]] MendedToken tagAsText(const WmlToken& tag) const;
    [[nodiscard]] MendedToken mendedComment(std::string_view source) const;
    [[nodiscard]] MendedToken mendedSection(const WmlToken& section) const;
    [[nodiscard]] MendedToken mendedInstruction(const WmlToken& instruction) const;

    CharacterMender characters_;
};

/// A comment around any text that has no fault of characters.
[[nodiscard]] std::string commentOf(std::string_view text);

} // namespace quillmere::wml
