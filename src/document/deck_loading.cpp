// Held by deck_store_test.cpp.

#include "document/deck_loading.h"

namespace quillmere {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

void createAreaFiles(WorkFiles& files, DeckRecord& area)
{
    area.designFile = files.createFile(kWorkFilePrefix, kDesignFileSuffix);
    area.designDir = files.directory();
    area.spareDesignFile = files.createFile(kWorkFilePrefix, kDesignFileSuffix);
    area.spareDesignDir = files.directory();
}

} // namespace

std::string writeWorkCopy(WorkFiles& files, std::string text)
{
    auto name = files.unusedName(kWorkFilePrefix, kWmlFileSuffix);
    files.write(files.directory() + name, std::move(text));
    return name;
}

DeckRecord& beginDeck(
    DocumentSession& session, const DeckLocation& location, std::int16_t surfaceKind)
{
    session.deck = Deck(2);
    auto& first = session.deck.front();
    first.inUse = true;
    first.deckFile = location.deckFile;
    first.deckDir = location.deckDir;
    first.surfaceKind = surfaceKind;
    createAreaFiles(session.workFiles, first);
    return first;
}

void useSpareRecord(DocumentSession& session)
{
    auto& deck = session.deck;
    deck.back() = areaBehind(deck[deck.size() - 2]);
    createAreaFiles(session.workFiles, deck.back());
    deck.emplace_back();
}

std::string readWorkFile(const DocumentSession& session, const DeckLocation& location)
{
    return session.workFiles.read(location.workDir + location.workFile);
}

void nameWmlFile(DocumentSession& session, DeckReplacement& replacement,
    const DeckLocation& location, std::string text)
{
    auto& first = session.deck.front();
    const bool isGiven = !location.workFile.empty();
    if (isGiven) replacement.keep(location.workDir + location.workFile);
    first.wmlFile = isGiven ? location.workFile : writeWorkCopy(session.workFiles, std::move(text));
    first.wmlDir = isGiven ? location.workDir : session.workFiles.directory();
}

DesignFrame frameOf(DocumentSession& session)
{
    const int kind = session.deck.front().surfaceKind;
    return {designPageLines(session, kind, PageSection::Head, "<p"),
        designPageLines(session, kind, PageSection::Tail, "</p")};
}

std::string designFileOf(std::string_view marker, std::string_view doBlock,
    const DesignFrame& frame, std::string_view body)
{
    std::string file;
    file.reserve(marker.size() + doBlock.size() + frame.head.size() + body.size()
        + frame.tail.size() + 3 * kLineEnd.size());
    file.append(marker).append(kLineEnd).append(doBlock).append(kLineEnd);
    return file.append(frame.head).append(body).append(kLineEnd).append(frame.tail);
}

} // namespace quillmere
