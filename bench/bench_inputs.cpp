// The deck is one generated piece over and over, so that it has the same mix of elements at every
// size and times compare. Texts of later stages are made by the steps themselves.

#include "bench_inputs.h"

#include "cli/core_session.h"
#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/design_to_wml.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/radio_buttons.h"
#include "document/text/failure.h"
#include "generator/deck_generator.h"

namespace quillmere::bench {

namespace {

constexpr Shape kShapes[] = {
    {"deck", ""},
    {"less", "<"},
    {"greater", ">"},
    {"blanks", " "},
    {"nestedTag", "<a"},
    {"quotes", "<a href=\"x"},
    {"emptyPairs", "<b></b>"},
    {"overlaps", "<b><i></b></i>"},
    {"neverClosed", "<p>x<b>y<table>"},
    {"onlyEnds", "</p>x</b></td>"},
    {"options", "<!--option-->x"},
    {"selects", "<select><option>x</option></select>"},
    {"markers", "<!--do--><!--go-->"},
    {"emptyParagraphs", "<p>&nbsp;</p>"},
    {"rows", "<table><tr>x</tr>y"},
    {"breaks", "<br/>x"},
    {"cards", "<card id=\"a\">x</card>"},
};

// With these seeds a short piece has formats, links, lists, tables, pictures and accents.
constexpr std::uint64_t kCardsSeed = 594;
constexpr std::uint64_t kOneCardSeed = 280;
constexpr std::size_t kPieceBytes = 1000;

std::string repeated(std::string_view piece, std::size_t size)
{
    std::string text;
    text.reserve(size);
    while (text.size() + piece.size() <= size)
        text += piece;
    return text;
}

/// What stands between two texts that the generator writes once.
std::string between(const std::string& deck, std::string_view open, std::string_view close)
{
    const auto begin = deck.find(open) + open.size();
    return deck.substr(begin, deck.find(close, begin) - begin);
}

constexpr std::string_view kHead = "<?xml version=\"1.0\"?>\n<wml>\n";

std::string cardsDeck(std::size_t size)
{
    const auto deck = generateDeck(kCardsSeed, {.targetBytes = kPieceBytes});
    const auto cards = between(deck, "<wml>\n", "</wml>");
    return std::string(kHead) + repeated(cards, size) + "</wml>\n";
}

/// A deck of `count` pieces in one card.
std::string oneCardDeck(std::size_t count)
{
    const auto deck = generateDeck(kOneCardSeed, {.targetBytes = kPieceBytes, .oneCard = true});
    const auto piece = between(deck, R"(newcontext="true">)", "<do");
    std::string text(kHead);
    text += R"(<card id="k1" title="Karte">)";
    for (; count > 0; --count)
        text += piece;
    return text + R"(<do type="accept" label="Los"><go href="#k1"/></do></card></wml>)";
}

std::string bodyOf(const std::string& deck)
{
    return between(deck, R"(title="Karte">)", "</wml>");
}

std::string designOf(const std::string& deck)
{
    cli::CoreSession core(false);
    auto& files = core.workFiles;
    const auto name = files.createFile("Wml", ".wml");
    files.write(files.directory() + name, deck);
    LoadDeck(core.session, {"deck.wml", {}, name, files.directory()});
    auto text = joinLines(files.read(core.session.deck.front().designFile));
    DeleteAllTemporaeryRadioButtons(text);
    return text;
}

std::string textAt(Stage stage, const std::string& deck)
{
    if (stage == Stage::Wml) return bodyOf(deck);
    auto text = designOf(deck);
    const OutputRules rules;
    if (stage != Stage::Design) CleanDesignHtml(text, rules);
    if (stage != Stage::Converted) return text;
    cli::CoreSession core(false);
    DesignToWml(text, core.session);
    return text;
}

} // namespace

std::span<const Shape> shapes()
{
    return kShapes;
}

std::string inputOf(const Shape& shape, Stage stage, std::size_t size)
{
    if (!shape.piece.empty()) return repeated(shape.piece, size);
    for (auto count = 1 + size / kPieceBytes;; --count) {
        try {
            auto text = textAt(stage, oneCardDeck(count));
            if (text.size() <= size) return text;
        } catch (const Overflow&) {
            continue; // design text is longer than its WML
        }
    }
}

std::string deckOf(const Shape& shape, std::size_t size)
{
    if (!shape.piece.empty()) return repeated(shape.piece, size);
    return cardsDeck(size);
}

} // namespace quillmere::bench
