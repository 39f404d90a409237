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

} // namespace

StandardRepair repairStandard(const std::string& bytes)
{
    auto repaired = repairFile(bytes);
    const DeckBytes deck(bytes);
    StandardRepair result;
    result.read = deck.decoded(deck.text());
    if (!repaired.mends.empty()) result.mends = placed(std::move(repaired.mends), deck);
    result.written = std::move(repaired.bytes);
    result.fault = deckFault(DeckBytes(result.written).text());
    return result;
}

DeckChangesReport changesOf(const StandardRepair& repair)
{
    const DeckBytes deck(repair.written);
    DeckChangesReport report = DeckChanges(repair.read, deck.decoded(deck.text()));
    report.fault = repair.fault;
    report.stable = repairFile(repair.written).bytes == repair.written;
    return report;
}

} // namespace quillmere::cli
