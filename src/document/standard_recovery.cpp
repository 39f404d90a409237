// Held by standard_road_test.cpp.

#include "document/standard_recovery.h"

#include "document/standard/standard_deck.h"
#include "document/standard_pictures.h"

#include <memory>

namespace quillmere {

std::uint32_t cardOf(const DeckRecord& area)
{
    return area.origin.card ? area.origin.index : kNoCard;
}

void reopenCards(DocumentSession& session, const std::optional<std::string>& file,
    std::span<const std::uint32_t> cards)
{
    const auto deck = file ? std::make_shared<const StandardDeck>(*file)
                           : std::make_shared<const StandardDeck>();
    for (std::size_t area = 0; area < areaCount(session.deck); ++area) {
        auto& origin = session.deck[area].origin;
        origin.deck = deck;
        origin.card = nullptr;
        origin.index = area < cards.size() ? cards[area] : kNoCard;
        if (origin.index >= deck->cardCount()) continue;
        const auto roads = picturesOf(session, area);
        origin.card = std::make_shared<const OpenedCard>(deck->open(origin.index, roads));
    }
}

} // namespace quillmere
