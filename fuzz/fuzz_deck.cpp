// Any bytes as a deck: loaded and written, by the default and by the public standards.

#include "fuzz_target.h"

#include "cli/core_session.h"
#include "document/deck_repair.h"
#include "document/deck_store.h"
#include "document/failure.h"
#include "document/limits.h"

#include <algorithm>
#include <string>

using namespace quillmere;

namespace {

// Each area's file ends with the tail of the frame, but for the last one, which ends where the deck
// ends within a card's tag.
void requireWholeAreas(cli::CoreSession& core)
{
    const Deck& deck = core.session.deck;
    for (std::size_t area = 0; area + 1 < areaCount(deck); ++area) {
        const std::string text = core.workFiles.read(deck[area].designDir + deck[area].designFile);
        fuzz::require(text.ends_with("</BODY>\r\n</HTML>\r\n"));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    cli::CoreSession core((data[0] & 1U) != 0);
    const std::string text(data + 1, data + size);
    try {
        const std::string written = repairedDeck(core.session, text);
        fuzz::require(written.size() <= kMaxTextLength + 1024);
        fuzz::require(std::all_of(written.begin(), written.end(),
            [](char c) { return static_cast<unsigned char>(c) < 127; }));
        requireWholeAreas(core);
    } catch (const RuntimeFailure&) {
        // a deck that is too long or holds a value without its end
    }
    return 0;
}
