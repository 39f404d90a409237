#include "support/wml_checks.h"

#include "document/changes/character_references.h"
#include "document/changes/deck_changes.h"
#include "document/changes/deck_changes_report.h"
#include "document/changes/markup_document.h"
#include "document/text/text_search.h"
#include "document/wml/deck_bytes.h"
#include "document/wml/repaired_file.h"

namespace quillmere::test {

namespace {

/// Text with its references undone, without those to entities that nobody knows: what a mend makes
/// of them may be their character.
std::string textOf(std::string_view marked)
{
    std::string text;
    for (std::size_t at = 0; at < marked.size();) {
        const auto character = decodeCharacter(marked, at);
        at += character.length;
        if (character.form != DecodedCharacter::Form::Unknown) text += character.text;
    }
    return text;
}

/// What a reader sees of a deck, without white space and control characters.
std::string lettersOf(std::string_view deck)
{
    std::string letters;
    for (const auto& token : readMarkup(deck).tokens) {
        const bool isText = token.kind == MarkupToken::Kind::Text;
        if (!isText && token.kind != MarkupToken::Kind::Section) continue;
        for (const char letter : isText ? textOf(token.content) : std::string(token.content))
            if (static_cast<unsigned char>(letter) > ' ') letters += letter;
    }
    return letters;
}

/// The end of `letters` from the first one on that `all` has not in the same order.
std::string lostOf(const std::string& letters, const std::string& all)
{
    std::size_t at = 0;
    for (const char letter : all)
        if (at < letters.size() && letters[at] == letter) ++at;
    return letters.substr(at);
}

/// "" for a well-formed deck.
std::string faultOf(const std::string& deck)
{
    const auto fault = deckFault(deck);
    return fault ? describeFault(*fault) : "";
}

/// Whether a value may hold a script, `<img src="<?= "x" ?>.wbmp"/>`, which the judge does not pass
/// over as a whole.
bool hasScriptInValue(std::string_view text)
{
    for (const std::string_view script : {"<?", "<%"}) {
        for (auto at = text.find(script); at != npos; at = text.find(script, at + 1)) {
            const auto ahead = text.substr(0, at);
            const auto bracket = ahead.find_last_of("<>");
            const bool isInTag = bracket != npos && ahead[bracket] == '<';
            if (isInTag && ahead.find_first_of("\"'", bracket) != npos) return true;
        }
    }
    return false;
}

/// Whether both readers see the same tokens: of faults in declarations the judge knows little.
bool isPlainlyRead(std::string_view text)
{
    if (hasScriptInValue(text)) return false;
    constexpr std::string_view kXml = "<?xml";
    for (auto at = findIgnoringCase(text, kXml); at != npos;
         at = findIgnoringCase(text, kXml, at + 1))
        if (!text.substr(0, text.find('>', at)).ends_with('?')) return false;
    const auto root = text.find("<wml");
    const auto declaration = text.find("<!");
    return text.substr(0, root).find('[') == npos && (declaration == npos || declaration < root);
}

} // namespace

std::string brokenPromise(const std::string& bytes)
{
    const DeckBytes deck(bytes);
    if (deck.file() != bytes) return "read and written without a mend it is another file";
    const auto repaired = repairFile(bytes);
    const DeckBytes mended(repaired.bytes);
    if (repaired.mends.empty() && repaired.bytes != bytes) return "another file without mends";
    if (auto fault = faultOf(std::string(mended.text())); !fault.empty()) return fault;
    if (isPlainlyRead(deck.text())) {
        auto letters = lettersOf(deck.text());
        const auto isBeyondAscii = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
        if (!deck.isValid(deck.text())) std::erase_if(letters, isBeyondAscii); // some may go
        const auto lost = lostOf(letters, lettersOf(mended.text()));
        if (!lost.empty()) return "lost: " + lost;
    }
    const auto again = repairFile(repaired.bytes);
    if (again.bytes != repaired.bytes) return "a second repair makes of it:\n" + again.bytes;
    return again.mends.empty() ? "" : "mends are told where nothing is mended";
}

} // namespace quillmere::test
