// Held by tests/cli.

#include "cli/deck_check.h"

#include "document/text/text_search.h"

namespace quillmere::cli {

std::optional<std::string> doubtAbout(const std::string& path, std::string_view deck)
{
    const auto card = findIgnoringCase(deck, "<card");
    const bool holdsCard = card != npos && deck.find('>', card) != npos;
    const bool isBinary = deck.find('\0') != npos; // UTF-16 as well, where it was not decoded
    if (holdsCard && !isBinary) return std::nullopt;
    const std::string reason
        = isBinary ? "Nullbytes wie eine Binärdatei" : "keine vollständige Karte (<card>)";
    return "Die Datei „" + path + "“ enthält " + reason + " und ist wohl kein WML-Deck.";
}

std::string readDeckOf(const DocumentSession& session)
{
    const DeckRecord& first = session.deck.front();
    return session.workFiles.read(first.pristineDir + first.pristineFile);
}

} // namespace quillmere::cli
