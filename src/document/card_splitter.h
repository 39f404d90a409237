#pragma once

#include "document/text/text_search.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// One card of a deck, as WML.
struct CardSource {
    std::string head; ///< the card tag, with what stood ahead of it
    std::string doBlock; ///< "" where the card has none
    std::string body;
};

/// Splits the text of a deck into its cards from left to right. A card that cannot be made out, be
/// it in a text without any, is headed by a tag of its own ("Korrigiert"); a card without end ends
/// ahead of the second "<card" behind its head or with the text.
class CardSplitter {
public:
    /// `text` is the deck with its lines joined. Throws Overflow where it is too long.
    explicit CardSplitter(std::string text);
    CardSplitter(const CardSplitter&) = delete;
    CardSplitter& operator=(const CardSplitter&) = delete;
    CardSplitter(CardSplitter&&) = delete;
    CardSplitter& operator=(CardSplitter&&) = delete;
    ~CardSplitter() = default;

    /// The next card; nullopt for a card tag without '>', which is the last of its deck.
    /// Throws Overflow where the text has no room for the tag that heads a card.
    [[nodiscard]] std::optional<CardSource> next();
    /// Whether a further card is left.
    [[nodiscard]] bool hasMore() const { return hasMore_; }

private:
    enum class Round { CardTaken, HeadOpen, Abandoned };
    enum class Mark : std::uint8_t { Card, CardEnd, Do };
    static constexpr std::size_t kMarkCount = 3;
    Round takeCard(CardSource& card);
    [[nodiscard]] bool takeHead(std::string& head);
    [[nodiscard]] std::string takeDoBlock();
    [[nodiscard]] bool takeBody(std::string& body);
    void trimRest();

    [[nodiscard]] std::string_view rest() const;
    [[nodiscard]] std::string takeTo(std::size_t offset);
    /// The first mark in what is left; npos where there is none.
    [[nodiscard]] std::size_t next(Mark mark);
    [[nodiscard]] std::size_t secondCard();
    void passTo(std::size_t offset);
    /// Finds the marks from `begin` up to `end` anew, behind which they are known.
    void findMarks(std::size_t begin, std::size_t end);

    std::string text_;
    std::size_t begin_ = 0; // what is left of the text
    std::size_t end_ = 0;
    bool hasMore_ = true;

    using Places = std::vector<std::size_t>;
    std::array<Places, kMarkCount> places_; // of each mark that is left, the next one last
    std::size_t endWithoutDo_ = npos; // ahead of this card end there is no do block to take
};

} // namespace quillmere
