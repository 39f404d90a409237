// Any bytes as a deck: loaded and written, by the default and without loss, where an unedited deck
// comes out as it went in.

#include "fuzz_target.h"

#include "cli/core_session.h"
#include "document/deck_store.h"
#include "document/text/failure.h"
#include "document/text/limits.h"

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

void requireSevenBits(const std::string& text)
{
    fuzz::require(std::all_of(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 127; }));
}

/// What the loaded deck `text` is written as.
std::string writtenAgain(cli::CoreSession& core, const std::string& text)
{
    core.workFiles.write("given.wml", text);
    LoadDeck(core.session, {"deck.wml", "/nowhere/", "given.wml", ""});
    WriteDeck(core.session);
    return core.workFiles.read(core.session.deck.front().wmlFile);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const bool standardOutput = (data[0] & 1U) != 0;
    cli::CoreSession core(standardOutput);
    const std::string text(data + 1, data + size);
    try {
        const std::string written = writtenAgain(core, text);
        requireWholeAreas(core);
        if (standardOutput) {
            fuzz::require(written == text);
            return 0;
        }
        constexpr std::size_t kLineEnd = 2; // behind the last line
        fuzz::require(written.size() <= kMaxTextLength + kLineEnd);
        // The names of pictures come back as they were.
        if (written.find("<img") == std::string::npos) requireSevenBits(written);
    } catch (const RuntimeFailure&) {
        // a deck that is too long or holds a value without its end
    }
    return 0;
}
