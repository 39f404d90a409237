// Held by tests/cli/repair_test.cpp.

#include "cli/standard_repair.h"

#include "document/wml/deck_bytes.h"
#include "document/wml/deck_places.h"
#include "document/wml/repaired_file.h"

#include <utility>

namespace quillmere::cli {

namespace {

std::vector<PlacedMend> placed(std::vector<WmlMend> mends, const DeckBytes& deck)
{
    std::vector<PlacedMend> result;
    DeckPlaces places(deck);
    for (WmlMend& mend : mends) {
        const auto place = places.at(mend.offset);
        result.push_back({std::move(mend), place});
    }
    return result;
}

/// The decks were compared as Windows-1252, in which characters may be references.
void placeInFiles(DeckChangesReport& report, const DeckBytes& read, const DeckBytes& written)
{
    if (report.changes.empty()) return;
    const DecodedPlaces readPlaces(read);
    const DecodedPlaces writtenPlaces(written);
    for (DeckChange& change : report.changes) {
        if (change.readAt) change.readAt = readPlaces.inDeck(*change.readAt);
        if (change.writtenAt) change.writtenAt = writtenPlaces.inDeck(*change.writtenAt);
    }
}

} // namespace

StandardRepair repairStandard(const std::string& bytes)
{
    auto repaired = repairFile(bytes);
    StandardRepair result;
    result.deck = DeckBytes(bytes);
    result.read = result.deck.decoded(result.deck.text());
    if (!repaired.mends.empty()) result.mends = placed(std::move(repaired.mends), result.deck);
    result.written = std::move(repaired.bytes);
    result.fault = deckFault(DeckBytes(result.written).text());
    return result;
}

DeckChangesReport changesOf(const StandardRepair& repair)
{
    const DeckBytes written(repair.written);
    DeckChangesReport report = DeckChanges(repair.read, written.decoded(written.text()));
    placeInFiles(report, repair.deck, written);
    report.fault = repair.fault;
    report.stable = repairFile(repair.written).bytes == repair.written;
    return report;
}

} // namespace quillmere::cli
