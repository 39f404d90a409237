// Loading makes the new deck in the session while the old one is set aside, since the conversions
// work on the session's deck. Held by deck_store_test.cpp.

#include "document/card_splitter.h"
#include "document/deck_replacement.h"
#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/format_around_select.h"
#include "document/platform/files.h"
#include "document/repair/format_nesting.h"
#include "document/repair/radio_buttons.h"
#include "document/standard/standard_deck.h"
#include "document/standard_pictures.h"
#include "document/text/limits.h"
#include "document/text/windows1252.h"
#include "document/wml_to_design.h"

#include <memory>
#include <utility>

namespace quillmere {
namespace {

// Line ends and characters of several bytes make a file longer than its deck, but not without
// end: a device such as /dev/zero is given up here.
constexpr std::size_t kMaxDeckBytes = 32 * (kMaxTextLength + 1);
constexpr std::size_t kMaxStandardBytes = 4 * (kMaxLosslessTextLength + 1);

constexpr std::string_view kLineEnd = "\r\n";

/// Windows-1252 text; where nothing is lost the bytes of the files.
struct DeckTexts {
    std::string wml; ///< what is converted
    std::string opened; ///< the deck as opened, for the pristine copy
};

std::string readDeckFile(const DocumentSession& session, const std::string& path)
{
    if (session.output.losesNothing()) return readFile(path, kMaxStandardBytes);
    return textFromDeckBytes(readFile(path, kMaxDeckBytes));
}

// A deck that was never saved has no file yet: what is read is then the deck as opened.
DeckTexts readTexts(const DocumentSession& session, const DeckLocation& location, bool needsOpened)
{
    const auto deckPath = location.deckDir + location.deckFile;
    DeckTexts texts;
    if (session.output.losesNothing() && !location.workFile.empty()) {
        texts.wml = session.workFiles.read(location.workDir + location.workFile);
        texts.opened = texts.wml; // areas are compared with what they were opened from
    } else if (location.workFile.empty()) {
        texts.opened = readDeckFile(session, deckPath);
        texts.wml = texts.opened;
    } else {
        texts.wml = session.workFiles.read(location.workDir + location.workFile);
        if (needsOpened)
            texts.opened = fileExists(deckPath) ? readDeckFile(session, deckPath) : texts.wml;
    }
    return texts;
}

/// Writes `text` to a new work file for decks and returns its name.
std::string writeWorkCopy(WorkFiles& files, std::string text)
{
    auto name = files.unusedName(kWorkFilePrefix, kWmlFileSuffix);
    files.write(files.directory() + name, std::move(text));
    return name;
}

void createAreaFiles(WorkFiles& files, DeckRecord& area)
{
    area.designFile = files.createFile(kWorkFilePrefix, kDesignFileSuffix);
    area.designDir = files.directory();
    area.spareDesignFile = files.createFile(kWorkFilePrefix, kDesignFileSuffix);
    area.spareDesignDir = files.directory();
}

bool hasPristine(const DocumentSession& session, const Deck& deck)
{
    return !deck.empty() && !deck.front().pristineFile.empty()
        && session.workFiles.exists(deck.front().pristineDir + deck.front().pristineFile);
}

/// Fills record 0 and makes its work files.
void startDeck(
    DocumentSession& session, const Deck& old, const DeckLocation& location, DeckTexts texts)
{
    auto& files = session.workFiles;
    session.deck.resize(2);
    auto& first = session.deck.front();
    first.inUse = true;
    first.deckFile = location.deckFile;
    first.deckDir = location.deckDir;
    createAreaFiles(files, first);
    const bool isGiven = !location.workFile.empty();
    first.wmlFile = isGiven ? location.workFile : writeWorkCopy(files, std::move(texts.wml));
    first.wmlDir = isGiven ? location.workDir : files.directory();
    const bool isKept = !session.output.losesNothing() && hasPristine(session, old);
    first.pristineFile
        = isKept ? old.front().pristineFile : writeWorkCopy(files, std::move(texts.opened));
    first.pristineDir = isKept ? old.front().pristineDir : files.directory();
}

/// Makes the spare record an area with a new spare one behind it.
void useSpareRecord(DocumentSession& session)
{
    auto& deck = session.deck;
    deck.back() = areaBehind(deck[deck.size() - 2]);
    createAreaFiles(session.workFiles, deck.back());
    deck.emplace_back();
}

std::string convertBody(std::string body, std::size_t areaIndex, DocumentSession& session)
{
    RepairNesting(body);
    RepairFormatAroundSelect(body, session);
    WmlToDesign(body, areaIndex, session);
    InsertTemporaeryRadioButtons(body);
    return body;
}

/// The page around the body of a card. Its own paragraph is left out, since the card brings its
/// paragraphs with it.
struct Frame {
    std::string head;
    std::string tail;
};

Frame frameOf(DocumentSession& session)
{
    const int kind = session.deck.front().surfaceKind;
    return {designPageLines(session, kind, PageSection::Head, "<p"),
        designPageLines(session, kind, PageSection::Tail, "</p")};
}

/// The design work file of a card: marker, do block, and the body in one line within the frame.
std::string designFileOf(
    std::string_view marker, std::string_view doBlock, const Frame& frame, std::string_view body)
{
    std::string file;
    file.reserve(marker.size() + doBlock.size() + frame.head.size() + body.size()
        + frame.tail.size() + 3 * kLineEnd.size());
    file.append(marker).append(kLineEnd).append(doBlock).append(kLineEnd);
    return file.append(frame.head).append(body).append(kLineEnd).append(frame.tail);
}

std::string convertedCard(
    CardSource card, const Frame& frame, std::size_t areaIndex, DocumentSession& session)
{
    WmlToDesign(card.head, areaIndex, session);
    WmlToDesign(card.doBlock, areaIndex, session);
    const auto body = convertBody(std::move(card.body), areaIndex, session);
    return designFileOf(card.head, card.doBlock, frame, body);
}

/// Takes the next card into the last area. A card tag that is cut off leaves the file empty.
void loadCard(DocumentSession& session, const Frame& frame, CardSplitter& cards)
{
    const auto index = areaCount(session.deck) - 1;
    auto card = cards.next();
    if (!card) return;
    auto file = convertedCard(std::move(*card), frame, index, session);
    const auto& area = session.deck[index];
    session.workFiles.write(area.designDir + area.designFile, std::move(file));
}

void loadCards(DocumentSession& session, const Frame& frame, CardSplitter& cards)
{
    loadCard(session, frame, cards);
    while (cards.hasMore()) {
        useSpareRecord(session);
        loadCard(session, frame, cards);
    }
}

/// Takes a card of a deck without loss into the last area. The actions stand in its content.
void openCard(DocumentSession& session, const Frame& frame, std::uint32_t card)
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

void openCards(
    DocumentSession& session, const Frame& frame, const std::shared_ptr<const StandardDeck>& deck)
{
    session.deck.front().origin.deck = deck;
    for (std::uint32_t card = 0; card < deck->cardCount(); ++card) {
        if (card > 0) useSpareRecord(session);
        openCard(session, frame, card);
    }
}

} // namespace

void LoadDeck(DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind)
{
    auto texts = readTexts(session, location, !hasPristine(session, session.deck));
    const auto standard
        = session.output.losesNothing() ? std::make_shared<const StandardDeck>(texts.wml) : nullptr;
    CardSplitter cards(joinLines(standard ? std::string_view{} : texts.wml));
    DeckReplacement replacement(session);
    if (!location.workFile.empty()) replacement.keep(location.workDir + location.workFile);
    startDeck(session, replacement.old(), location, std::move(texts));
    session.deck.front().surfaceKind = surfaceKind;
    const auto frame = frameOf(session);
    if (standard)
        openCards(session, frame, standard);
    else
        loadCards(session, frame, cards);
    replacement.commit();
}

} // namespace quillmere
