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
#include "document/text/limits.h"
#include "document/text/windows1252.h"
#include "document/wml_to_design.h"

#include <utility>

namespace quillmere {
namespace {

// Line ends and characters of several bytes make a file longer than its deck, but not without
// end: a device such as /dev/zero is given up here.
constexpr std::size_t kMaxDeckBytes = 32 * (kMaxTextLength + 1);

constexpr std::string_view kLineEnd = "\r\n";

struct DeckTexts {
    std::string wml; ///< what is converted
    std::string opened; ///< the deck as opened, for the pristine copy
};

// A deck that was never saved has no file yet: what is read is then the deck as opened.
DeckTexts readTexts(const DocumentSession& session, const DeckLocation& location, bool needsOpened)
{
    const auto deckPath = location.deckDir + location.deckFile;
    const auto readDeckFile = [&] { return textFromDeckBytes(readFile(deckPath, kMaxDeckBytes)); };
    DeckTexts texts;
    if (location.workFile.empty()) {
        texts.opened = readDeckFile();
        texts.wml = texts.opened;
    } else {
        texts.wml = session.workFiles.read(location.workDir + location.workFile);
        if (needsOpened) texts.opened = fileExists(deckPath) ? readDeckFile() : texts.wml;
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
    const bool isKept = hasPristine(session, old);
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
    CardSource card, const Frame& frame, std::size_t areaIndex, DocumentSession& session)
{
    WmlToDesign(card.head, areaIndex, session);
    WmlToDesign(card.doBlock, areaIndex, session);
    const auto body = convertBody(std::move(card.body), areaIndex, session);
    std::string file;
    file.reserve(card.head.size() + card.doBlock.size() + frame.head.size() + body.size()
        + frame.tail.size() + 3 * kLineEnd.size());
    file.append(card.head).append(kLineEnd).append(card.doBlock).append(kLineEnd);
    return file.append(frame.head).append(body).append(kLineEnd).append(frame.tail);
}

/// Takes the next card into the last area. A card tag that is cut off leaves the file empty.
void loadCard(DocumentSession& session, const Frame& frame, CardSplitter& cards)
{
    const auto index = areaCount(session.deck) - 1;
    auto card = cards.next();
    if (!card) return;
    auto file = designFileOf(std::move(*card), frame, index, session);
    const auto& area = session.deck[index];
    session.workFiles.write(area.designDir + area.designFile, std::move(file));
}

} // namespace

void LoadDeck(DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind)
{
    auto texts = readTexts(session, location, !hasPristine(session, session.deck));
    CardSplitter cards(joinLines(texts.wml));
    DeckReplacement replacement(session);
    if (!location.workFile.empty()) replacement.keep(location.workDir + location.workFile);
    startDeck(session, replacement.old(), location, std::move(texts));
    session.deck.front().surfaceKind = surfaceKind;
    const auto frame = frameOf(session);
    loadCard(session, frame, cards);
    while (cards.hasMore()) {
        useSpareRecord(session);
        loadCard(session, frame, cards);
    }
    replacement.commit();
}

} // namespace quillmere
