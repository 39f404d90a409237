// Texts of later stages are made by the steps themselves. Design text is longer than its WML, so
// the deck is generated again, smaller, until the text of the stage fits the size.

#include "bench_inputs.h"

#include "cli/core_session.h"
#include "document/clean_design_html.h"
#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/design_to_wml.h"
#include "document/radio_buttons.h"
#include "support/deck_generator.h"

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

constexpr std::uint64_t kSeed = 20;

std::string repeated(std::string_view piece, std::size_t size)
{
    std::string text;
    text.reserve(size);
    while (text.size() + piece.size() <= size)
        text += piece;
    return text;
}

std::string oneCardDeck(std::size_t size)
{
    return test::generateDeck(kSeed, {.targetBytes = size, .oneCard = true});
}

std::string bodyOf(const std::string& deck)
{
    const auto card = deck.find("<card");
    return deck.substr(deck.find('>', card) + 1);
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
    for (auto target = size;; target -= size / 50) {
        auto text = textAt(stage, oneCardDeck(target));
        if (text.size() <= size) return text;
    }
}

std::string deckOf(const Shape& shape, std::size_t size)
{
    if (!shape.piece.empty()) return repeated(shape.piece, size);
    return test::generateDeck(kSeed, {.targetBytes = size});
}

} // namespace quillmere::bench
