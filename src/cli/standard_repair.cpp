// Held by tests/cli/repair_test.cpp.

#include "cli/standard_repair.h"

#include "document/wml/deck_bytes.h"
#include "document/wml/repaired_file.h"

#include <utility>

namespace quillmere::cli {

StandardRepair repairStandard(const std::string& bytes)
{
    auto repaired = repairFile(bytes);
    const DeckBytes deck(bytes);
    const TextPlaces places(repaired.mends.empty() ? std::string_view() : deck.text());
    StandardRepair result;
    result.read = deck.decoded(deck.text());
    for (WmlMend& mend : repaired.mends) {
        const auto place = places.at(mend.offset);
        result.mends.push_back({std::move(mend), place});
    }
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
