#include "document/changes/deck_changes.h"
#include "document/design_text.h"
#include "document/platform/files.h"
#include "document/standard/opened_card.h"
#include "document/text/text_search.h"
#include "document/wml/repaired_file.h"
#include "generator/deck_generator.h"
#include "generator/wml_generator.h"
#include "support/small_deck.h"
#include "support/small_random.h"
#include "support/wml_validity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>

// Decks are opened, edited at random places and saved: the files differ there and nowhere else.
// QUILLMERE_DECKS may name a directory of further decks.

namespace quillmere {
namespace {

using Kind = DesignPiece::Kind;

/// An edit of an area's text, and how much of the file may differ.
struct Edit {
    std::string name;
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string inserted;
    std::size_t mostRemoved = 0;
    std::size_t mostInserted = 0;
};

/// An area's text and one of its pieces.
struct Place {
    const std::string& text;
    const std::vector<DesignPiece>& pieces;
    std::size_t at;

    [[nodiscard]] const DesignPiece& piece() const { return pieces[at]; }
    [[nodiscard]] std::size_t begin() const
    {
        return static_cast<std::size_t>(piece().text.data() - text.data());
    }
    [[nodiscard]] std::size_t end() const { return begin() + piece().text.size(); }
};

std::optional<Edit> insertWord(const Place& place)
{
    if (place.piece().kind != Kind::Word) return std::nullopt;
    return Edit{"insert a word", place.end(), place.end(), " Zusatz", 0, 7};
}

template <std::size_t length> std::optional<Edit> replaceWord(const Place& place)
{
    if (place.piece().kind != Kind::Word) return std::nullopt;
    const auto most = 8 * place.piece().text.size();
    return Edit{"replace a word", place.begin(), place.end(),
        std::string("anders").substr(0, length), most, 6};
}

std::optional<Edit> insertParagraph(const Place& place)
{
    const auto& piece = place.piece();
    if (piece.kind != Kind::End || piece.element != WmlElement::Paragraph) return std::nullopt;
    return Edit{"insert a paragraph", place.end(), place.end(), "<p>Neu hier</p>", 0, 100};
}

/// What a valid deck can do without.
bool isRemovable(WmlElement element)
{
    using enum WmlElement;
    return element == Paragraph || element == Bold || element == Link || element == Table
        || element == Select || element == Do;
}

std::optional<Edit> removeElement(Place place)
{
    if (place.piece().kind != Kind::Start || !isRemovable(place.piece().element))
        return std::nullopt;
    const auto begin = place.begin();
    for (int depth = 0; place.at < place.pieces.size(); ++place.at) {
        const auto kind = place.piece().kind;
        depth += kind == Kind::Start ? 1 : kind == Kind::End ? -1 : 0;
        if (depth > 0) continue;
        return Edit{"remove an element", begin, place.end(), "", 8 * (place.end() - begin) + 99, 4};
    }
    return std::nullopt;
}

std::optional<Edit> changeAttribute(const Place& place)
{
    if (place.piece().kind != Kind::Start) return std::nullopt;
    for (const std::string_view name : {"title=\"", "href=\"", "onpick=\"", "label=\""}) {
        const auto found = place.piece().text.find(name);
        if (found == std::string_view::npos) continue;
        const auto begin = place.begin() + found + name.size();
        const auto end = place.text.find('"', begin);
        return Edit{"change an attribute", begin, end, "neu", 8 * (end - begin), 3};
    }
    return std::nullopt;
}

/// An edit at a random piece; nothing where there are hardly any pieces for it.
std::optional<Edit> randomEdit(const std::string& text, test::SmallRandom& random)
{
    using Try = std::optional<Edit> (*)(const Place&);
    constexpr Try kTries[] = {insertWord, replaceWord<0>, insertParagraph,
        [](const Place& place) { return removeElement(place); }, changeAttribute, replaceWord<6>};
    const auto pieces = readDesignPieces(text);
    for (int tries = 0; pieces.size() > 1 && tries < 20; ++tries) {
        const Place place{text, pieces, 1 + random.below(pieces.size() - 1)};
        if (auto edit = kTries[random.below(std::size(kTries))](place)) return edit;
    }
    return std::nullopt;
}

/// What lies between the common beginning and the common end of two files.
struct Difference {
    std::string removed;
    std::string inserted;
};

Difference differenceOf(const std::string& before, const std::string& after)
{
    const auto most = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < most && before[head] == after[head])
        ++head;
    std::size_t tail = 0;
    while (tail < most - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {before.substr(head, before.size() - head - tail),
        after.substr(head, after.size() - head - tail)};
}

/// The judge of well-formed texts knows characters beyond ASCII as references only.
std::string inAscii(std::string text)
{
    if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) > 126; }, 'x');
    return text;
}

/// Display copies are counted and radio buttons made anew with each opening, and blanks with a line
/// end that have come to stand beside a tag may be layout.
std::string withoutChance(const std::string& design)
{
    std::string plain;
    for (std::size_t at = 0; at < design.size();) {
        const auto next = std::min(design.find_first_not_of(' ', at), design.size());
        const bool isBesideTag = plain.ends_with('>') || standsAt(design, next, "<");
        if (standsAt(design, at, "<input type=radio"))
            at = design.find('>', at) + 1;
        else if (next > at && isBesideTag)
            at = next;
        else if (plain.ends_with("Bmp") && design[at] >= '0' && design[at] <= '9')
            ++at;
        else
            plain += design[at++];
    }
    return plain;
}

/// Each piece of an opened text is read as one, and each token of the card belongs to one.
void expectPiecesAsRead(const OpenedCard& card)
{
    const auto read = readDesignPieces(card.text);
    ASSERT_EQ(read.size() + 1, card.pieces.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        const auto& opened = card.pieces[i];
        EXPECT_EQ(read[i].text, card.text.substr(opened.begin, opened.end - opened.begin));
        EXPECT_EQ(opened.tokens.behind, card.pieces[i + 1].tokens.first);
    }
}

void expectEditStaysInPlace(const std::string& file, std::uint64_t seed, bool checksRules)
{
    test::SmallRandom random(seed);
    test::SmallDeck deck(0, true);
    deck.load(file);
    ASSERT_EQ(deck.written(), file);
    const auto area = random.below(areaCount(deck.session.deck));
    expectPiecesAsRead(*deck.session.deck[area].origin.card);
    auto text = ReadDesignText(deck.session, area);
    const auto edit = randomEdit(text, random);
    if (!edit) return;
    SCOPED_TRACE(edit->name + " in area " + std::to_string(area));
    text.replace(edit->begin, edit->end - edit->begin, edit->inserted);
    WriteDesignText(deck.session, area, text);
    const auto written = deck.written();
    const auto sound = repairFile(file).bytes;
    const auto difference = differenceOf(sound, written);
    EXPECT_LE(difference.removed.size(), edit->mostRemoved) << difference.removed;
    EXPECT_LE(difference.inserted.size(), edit->mostInserted)
        << difference.removed << "|" << difference.inserted << "|\n"
        << sound;
    EXPECT_TRUE(repairFile(written).mends.empty());
    EXPECT_FALSE(deckFault(inAscii(written))) << written;
    test::SmallDeck again(0, true);
    again.load(written);
    EXPECT_EQ(withoutChance(ReadDesignText(again.session, area)), withoutChance(text));
    const bool isValid = checksRules && test::wmlFaults(sound).empty();
    EXPECT_EQ(isValid ? test::wmlFaults(written) : "", "") << sound << written;
}

/// A deck of a plain hand, laid out in one of several ways.
std::string plainDeck(std::uint64_t seed)
{
    auto deck = bench::generateDeck(seed, {.targetBytes = 600 + seed % 5 * 400});
    if (seed % 3 == 1) deck = std::regex_replace(deck, std::regex("\n"), "\r\n\t");
    if (seed % 3 == 2) deck = std::regex_replace(deck, std::regex("\n"), " ");
    if (seed % 4 == 1) std::ranges::replace(deck, '"', '\'');
    return deck;
}

TEST(StandardEdits, ChangeTheFileWhereTheyWereMade)
{
    for (std::uint64_t seed = 0; seed < 3000 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        auto deck = seed % 3 == 0 ? plainDeck(seed) : bench::generateWml(seed);
        if (seed % 10 == 1) deck = bench::breakDeck(deck, seed, 3);
        expectEditStaysInPlace(deck, seed, seed % 3 == 0 && seed < 1500);
    }
}

TEST(StandardEdits, HoldOnDecksOfOtherPeople)
{
    std::vector<std::string> directories{std::string(QUILLMERE_SOURCE_DIR) + "/examples"};
    if (const char* const more = std::getenv("QUILLMERE_DECKS")) directories.emplace_back(more);
    for (const auto& directory : directories) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
            if (entry.path().extension() != ".wml") continue;
            SCOPED_TRACE(entry.path().string());
            for (std::uint64_t seed = 0; seed < 20; ++seed)
                expectEditStaysInPlace(readFile(entry.path().string()), seed, seed == 0);
        }
    }
}

} // namespace
} // namespace quillmere
