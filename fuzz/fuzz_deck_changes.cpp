// Two halves of any bytes as what was read and what was written: compared without a fault, and a
// text has nothing lost and nothing added against itself.

#include "fuzz_target.h"

#include "document/changes/deck_changes.h"
#include "document/changes/deck_changes_json.h"
#include "document/changes/deck_changes_report.h"

#include <string>

using namespace quillmere;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    const std::string read = bytes.substr(0, size / 2);
    const auto report = DeckChanges(read, bytes.substr(size / 2));
    fuzz::require(!jsonReport(report, "deck").empty() && !textReport(report, "deck").empty());
    fuzz::require(DeckChanges(read, read).changes.empty());
    return 0;
}
