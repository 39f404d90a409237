#pragma once

#include "document/wml/deck_bytes.h"
#include "document/wml/deck_entities.h"
#include "document/wml/wml_mends.h"

#include <cstdint>
#include <string>
#include <string_view>

// What is written in place of characters and references that a deck cannot have.

namespace quillmere::wml {

/// A set of rules.
class MendRules {
public:
    void add(MendRule rule) { bits_ |= bit(rule); }
    void add(const MendRules& others) { bits_ |= others.bits_; }
    [[nodiscard]] bool has(MendRule rule) const { return (bits_ & bit(rule)) != 0; }
    [[nodiscard]] bool isEmpty() const { return bits_ == 0; }

private:
    static std::uint32_t bit(MendRule rule)
    {
        return std::uint32_t{1} << static_cast<unsigned>(rule);
    }
    std::uint32_t bits_ = 0;
};

struct MendedText {
    std::string text;
    MendRules rules; ///< that were needed; none: the text is as it was
};

class CharacterMender {
public:
    /// Both must outlive it.
    CharacterMender(const DeckBytes& deck, const DeckEntities& entities);

    /// Text between tags, with references.
    [[nodiscard]] MendedText content(std::string_view text) const;
    /// The value of an attribute for `quote`, which becomes a reference in it.
    [[nodiscard]] MendedText value(std::string_view value, char quote) const;
    /// Text of comments, instructions and declarations, where a reference means nothing.
    [[nodiscard]] MendedText plain(std::string_view text) const;
    /// Whether the characters of a name are letters and what else XML 1.0 (5th edition) allows.
    [[nodiscard]] bool isName(std::string_view name) const;

private:
    [[nodiscard]] MendedText mended(std::string_view text, char quote, bool hasReferences) const;
    std::size_t mendReference(std::string_view text, std::size_t at, MendedText& result) const;
    std::size_t mendCharacter(
        std::string_view text, std::size_t at, bool hasReferences, MendedText& result) const;

    const DeckBytes& deck_;
    const DeckEntities& entities_;
};

} // namespace quillmere::wml
