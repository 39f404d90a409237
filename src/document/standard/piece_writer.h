#pragma once

#include "document/standard/card_pieces.h"
#include "document/standard/deck_of_cards.h"
#include "document/standard/new_content.h"
#include "document/standard/token_writer.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace quillmere {

/// Where the pieces of a changed card go: tokens of the file, and new content.
struct CardTarget {
    TokenWriter& tokens;
    NewContent& added;
};

/// Writes single pieces of a changed card. All that it is given must outlive it.
class PieceWriter {
public:
    PieceWriter(const DeckOfCards& deck, const CardPieces& card, CardTarget target);

    /// A piece that stayed with its tokens, one that changed with what did not change in it, else
    /// a new one.
    void write(std::size_t now);
    /// What is left of a tag that goes: the layout round it, or the blank that a line break
    /// becomes.
    void writeDissolved(std::size_t now);

private:
    void writeKept(std::size_t now);
    void writeChanged(std::size_t now);
    void writeChangedTag(std::size_t now);
    void writeNew(std::size_t now);
    void writeNewTag(const DesignPiece& piece);
    void writeBlanks(std::size_t now);
    [[nodiscard]] bool isEmptyElement(std::size_t then) const;
    [[nodiscard]] bool endFollows(std::size_t now, std::size_t then) const;
    [[nodiscard]] bool startIsAhead(std::size_t now, std::size_t then) const;
    [[nodiscard]] std::string sourceOf(const PieceTokens& tokens) const;
    [[nodiscard]] std::string sourceOfSame(const DesignPiece& piece);

    const DeckOfCards& deck_;
    const CardPieces& card_;
    CardTarget target_;
    std::unordered_map<std::uint64_t, std::uint32_t> sources_; ///< pieces of `then` by their keys
};

} // namespace quillmere
