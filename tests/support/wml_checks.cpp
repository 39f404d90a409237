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

/// Whether a value that a tag opens has no closing quote so far. Stray quotes are none.
bool endsInValue(std::string_view tag)
{
    bool isOpen = false;
    for (auto at = tag.find('='); at != npos && !isOpen; at = tag.find('=', at + 1)) {
        const auto quote = tag.find_first_not_of(" \t\r\n", at + 1);
        if (quote == npos || (tag[quote] != '"' && tag[quote] != '\'')) continue;
        isOpen = tag.find(tag[quote], quote + 1) == npos;
    }
    return isOpen;
}

/// Whether a '<' may stand in a value: where the tag around it ends can then be seen in two ways if
/// it is broken, and the text of one reader is a value of the other, with its quotes and brackets:
/// `<img src="<?= "x" ?>.wbmp"/>`, `<b x e="<i f="<"`.
bool hasBracketInValue(std::string_view text)
{
    auto tag = npos; // begins ahead, without a '>' since
    for (auto at = text.find_first_of("<>"); at != npos; at = text.find_first_of("<>", at + 1)) {
        const bool begins = text[at] == '<';
        if (begins && tag != npos && endsInValue(text.substr(tag, at - tag))) return true;
        tag = begins ? at : npos;
    }
    return false;
}

/// Whether both readers see the same tokens: of faults in declarations the judge knows little.
bool isPlainlyRead(std::string_view text)
{
    if (hasBracketInValue(text)) return false;
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
