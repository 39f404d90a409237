// Areas are compared with what they were opened from, so that the deck as opened is always what is
// read. Held by standard_road_test.cpp.

#include "document/deck_loading.h"
#include "document/design_text.h"
#include "document/repair/radio_buttons.h"
#include "document/standard/deck_file.h"
#include "document/standard/standard_deck.h"
#include "document/standard_pictures.h"

#include <memory>
#include <utility>

namespace quillmere {
namespace {

/// Takes a card into the last area. The actions stand in its content.
void loadCard(DocumentSession& session, const DesignFrame& frame, std::uint32_t card)
{
    const auto index = areaCount(session.deck) - 1;
    auto& origin = session.deck[index].origin;
    const auto roads = picturesOf(session, index);
    const auto opened = std::make_shared<const OpenedCard>(origin.deck->open(card, roads));
    std::string body = opened->text.substr(opened->contentBegin);
    insertRadioButtons(body, maxDesignLength(session));
    const auto marker = std::string_view(opened->text).substr(0, opened->contentBegin);
    const auto& area = session.deck[index];
    session.workFiles.write(
        area.designDir + area.designFile, designFileOf(marker, {}, frame, body));
    origin.index = card;
    origin.card = opened;
}

void loadCards(DocumentSession& session, const std::shared_ptr<const StandardDeck>& deck)
{
    session.deck.front().origin.deck = deck;
    const auto frame = frameOf(session);
    for (std::uint32_t card = 0; card < deck->cardCount(); ++card) {
        if (card > 0) useSpareRecord(session);
        loadCard(session, frame, card);
    }
}

} // namespace

void loadStandardDeck(
    DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind)
{
    auto file = location.workFile.empty() ? readStandardFile(location.deckDir + location.deckFile)
                                          : readWorkFile(session, location);
    const auto deck = std::make_shared<const StandardDeck>(file);
    DeckReplacement replacement(session);
    auto& first = beginDeck(session, location, surfaceKind);
    nameWmlFile(session, replacement, location, file);
    first.pristineFile = writeWorkCopy(session.workFiles, std::move(file));
    first.pristineDir = session.workFiles.directory();
    loadCards(session, deck);
    replacement.commit();
}

} // namespace quillmere
