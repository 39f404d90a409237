// Loading makes the new deck in the session while the old one is set aside, since the conversions
// work on the session's deck. Held by deck_store_test.cpp.

#include "document/card_splitter.h"
#include "document/deck_loading.h"
#include "document/design_text.h"
#include "document/format_around_select.h"
#include "document/platform/files.h"
#include "document/repair/format_nesting.h"
#include "document/repair/radio_buttons.h"
#include "document/text/limits.h"
#include "document/text/windows1252.h"
#include "document/wml_to_design.h"

#include <optional>
#include <utility>

namespace quillmere {
namespace {

// Line ends and characters of several bytes make a file longer than its deck, but not without
// end: a device such as /dev/zero is given up here.
constexpr std::size_t kMaxDeckBytes = 32 * (kMaxTextLength + 1);

std::string readDeckFile(const std::string& path)
{
    return textFromDeckBytes(readFile(path, kMaxDeckBytes));
}

bool hasPristine(const DocumentSession& session, const Deck& deck)
{
    return !deck.empty() && !deck.front().pristineFile.empty()
        && session.workFiles.exists(deck.front().pristineDir + deck.front().pristineFile);
}

struct DeckTexts {
    std::string wml; ///< what is converted
    std::optional<std::string> opened; ///< the deck as opened; nullopt: the old deck's goes on
};

// A deck that was never saved has no file yet: what is read is then the deck as opened.
DeckTexts readTexts(const DocumentSession& session, const DeckLocation& location)
{
    const auto deckPath = location.deckDir + location.deckFile;
    const bool isWorkFile = !location.workFile.empty();
    DeckTexts texts;
    texts.wml = isWorkFile ? readWorkFile(session, location) : readDeckFile(deckPath);
    if (hasPristine(session, session.deck)) return texts;
    texts.opened = isWorkFile && fileExists(deckPath) ? readDeckFile(deckPath) : texts.wml;
    return texts;
}

void namePristine(DocumentSession& session, const Deck& old, std::optional<std::string> opened)
{
    auto& first = session.deck.front();
    first.pristineFile
        = opened ? writeWorkCopy(session.workFiles, std::move(*opened)) : old.front().pristineFile;
    first.pristineDir = opened ? session.workFiles.directory() : old.front().pristineDir;
}

std::string convertBody(std::string body, std::size_t areaIndex, DocumentSession& session)
{
    RepairNesting(body);
    RepairFormatAroundSelect(body, session);
    WmlToDesign(body, areaIndex, session);
    InsertTemporaeryRadioButtons(body);
    return body;
}

std::string convertedCard(
    CardSource card, const DesignFrame& frame, std::size_t areaIndex, DocumentSession& session)
{
    WmlToDesign(card.head, areaIndex, session);
    WmlToDesign(card.doBlock, areaIndex, session);
    const auto body = convertBody(std::move(card.body), areaIndex, session);
    return designFileOf(card.head, card.doBlock, frame, body);
}

/// Takes the next card into the last area. A card tag that is cut off leaves the file empty.
void loadCard(DocumentSession& session, const DesignFrame& frame, CardSplitter& cards)
{
    const auto index = areaCount(session.deck) - 1;
    auto card = cards.next();
    if (!card) return;
    auto file = convertedCard(std::move(*card), frame, index, session);
    const auto& area = session.deck[index];
    session.workFiles.write(area.designDir + area.designFile, std::move(file));
}

void loadCards(DocumentSession& session, const DesignFrame& frame, CardSplitter& cards)
{
    loadCard(session, frame, cards);
    while (cards.hasMore()) {
        useSpareRecord(session);
        loadCard(session, frame, cards);
    }
}

} // namespace

void loadConvertedDeck(
    DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind)
{
    auto texts = readTexts(session, location);
    CardSplitter cards(joinLines(texts.wml));
    DeckReplacement replacement(session);
    beginDeck(session, location, surfaceKind);
    nameWmlFile(session, replacement, location, std::move(texts.wml));
    namePristine(session, replacement.old(), std::move(texts.opened));
    loadCards(session, frameOf(session), cards);
    replacement.commit();
}

void LoadDeck(DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind)
{
    if (session.output.losesNothing())
        loadStandardDeck(session, location, surfaceKind);
    else
        loadConvertedDeck(session, location, surfaceKind);
}

} // namespace quillmere
