#pragma once

#include "document/standard/deck_manner.h"
#include "document/standard/opened_card.h"
#include "document/wml/deck_bytes.h"
#include "document/wml/wml_mends.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

inline constexpr std::uint32_t kNoCard = std::numeric_limits<std::uint32_t>::max();

/// An area of a deck that is to be written.
struct AreaText {
    const OpenedCard* opened = nullptr; ///< null for a new area
    std::uint32_t card = kNoCard; ///< which card of the deck it was opened from
    std::string_view design; ///< its design text now, lines joined
};

/// A deck file as it was opened. It never changes; what is written is put together from its tokens
/// and from the areas as they are now.
class StandardDeck {
public:
    /// Takes any bytes. A broken deck is mended; one without a card gets an empty one. Throws
    /// DeckTooLong.
    explicit StandardDeck(std::string file);
    /// A deck that has no file yet: the head and end of a deck, and no card.
    StandardDeck();
    StandardDeck(const StandardDeck&) = delete;
    StandardDeck& operator=(const StandardDeck&) = delete;
    StandardDeck(StandardDeck&&) = delete; // tokens are slices of the text
    StandardDeck& operator=(StandardDeck&&) = delete;
    ~StandardDeck() = default;

    [[nodiscard]] std::size_t cardCount() const { return cards_.size(); }
    [[nodiscard]] OpenedCard open(std::size_t card, const PictureRoads& roads) const;
    /// What had to be mended; the places are in the text of the file.
    [[nodiscard]] const std::vector<WmlMend>& mends() const { return mends_; }
    /// The file as it was read.
    [[nodiscard]] std::string file() const { return bytes_.file(); }

    /// The deck with these areas as a file in its own encoding. Without a change it is the file as
    /// it was read, mended or not; else it is mended, and what no change touched is as it was.
    /// Throws DeckTooLong.
    [[nodiscard]] std::string written(
        std::span<const AreaText> areas, const PictureRoads& roads) const;

private:
    void mend();
    void addMissingCard();
    void readText(std::string_view text);

    DeckBytes bytes_;
    std::string mended_; ///< what the tokens are slices of, where that is not the file's own text
    DeckTokens tokens_;
    std::vector<std::uint32_t> cards_; ///< the tokens of the cards' tags
    std::vector<WmlMend> mends_;
    DeckManner manner_;
};

} // namespace quillmere
