#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere::bench {

struct DeckOptions {
    std::size_t targetBytes = 1500; ///< the deck is as long, give or take the last element
    double brokenness = 0; ///< 0: well-formed WML 1.1; else about so many faults per element
    bool oneCard = false; ///< all in one card instead of cards of some hundred bytes
    bool eightBit = true; ///< text with accents in Windows-1252
    std::string_view pictures = "bild"; ///< pictures are named so, with a number and ".wbmp"
};

/// A deck as a person might have written it: cards with do elements, paragraphs with alignment,
/// formats, links, lists, tables and pictures, laid out in lines. The same seed and options give
/// the same bytes. Faults are missing and stray ends, overlaps, missing quotes, single '<' and '>'
/// in text, cards without tag or end, and a cut end.
[[nodiscard]] std::string generateDeck(std::uint64_t seed, const DeckOptions& options = {});

} // namespace quillmere::bench
