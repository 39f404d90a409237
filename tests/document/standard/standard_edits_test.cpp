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
#include <functional>
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

class Editor {
public:
    Editor(std::string text, test::SmallRandom& random)
        : text_(std::move(text))
        , pieces_(readDesignPieces(text_))
        , random_(random)
    {
    }
    /// An edit at a random piece; nothing where there are hardly any pieces for it.
    std::optional<Edit> next()
    {
        if (pieces_.size() < 2) return std::nullopt;
        for (int tries = 0; tries < 20; ++tries)
            if (auto edit = tried()) return edit;
        return std::nullopt;
    }
    [[nodiscard]] std::string edited(const Edit& edit) const
    {
        auto text = text_;
        return text.replace(edit.begin, edit.end - edit.begin, edit.inserted);
    }

private:
    std::optional<Edit> tried()
    {
        at_ = 1 + random_.below(pieces_.size() - 1);
        using Try = std::optional<Edit> (Editor::*)();
        constexpr Try kTries[]
            = {&Editor::insertWord, &Editor::removeWord, &Editor::insertParagraph,
                &Editor::removeElement, &Editor::changeAttribute, &Editor::replaceWord};
        return (this->*kTries[random_.below(std::size(kTries))])();
    }
    [[nodiscard]] std::size_t beginOf(std::size_t piece) const
    {
        return static_cast<std::size_t>(pieces_[piece].text.data() - text_.data());
    }
    [[nodiscard]] std::size_t endOf(std::size_t piece) const
    {
        return beginOf(piece) + pieces_[piece].text.size();
    }
    [[nodiscard]] bool isWord() const { return pieces_[at_].kind == Kind::Word; }

    std::optional<Edit> insertWord()
    {
        if (!isWord()) return std::nullopt;
        return Edit{"insert a word", endOf(at_), endOf(at_), " Zusatz", 0, 7};
    }
    std::optional<Edit> removeWord()
    {
        if (!isWord()) return std::nullopt;
        return Edit{"remove a word", beginOf(at_), endOf(at_), "", 8 * pieces_[at_].text.size(), 0};
    }
    std::optional<Edit> replaceWord()
    {
        if (!isWord()) return std::nullopt;
        return Edit{
            "replace a word", beginOf(at_), endOf(at_), "anders", 8 * pieces_[at_].text.size(), 6};
    }
    std::optional<Edit> insertParagraph()
    {
        const auto& piece = pieces_[at_];
        if (piece.kind != Kind::End || piece.element != WmlElement::Paragraph) return std::nullopt;
        return Edit{"insert a paragraph", endOf(at_), endOf(at_), "<p>Neu hier</p>", 0, 100};
    }
    std::optional<Edit> removeElement()
    {
        if (pieces_[at_].kind != Kind::Start || !isRemovable(pieces_[at_].element))
            return std::nullopt;
        int depth = 0;
        for (auto i = at_; i < pieces_.size(); ++i) {
            depth += pieces_[i].kind == Kind::Start ? 1 : pieces_[i].kind == Kind::End ? -1 : 0;
            if (depth > 0) continue;
            const auto length = endOf(i) - beginOf(at_);
            return Edit{"remove an element", beginOf(at_), endOf(i), "", 8 * length + 99, 4};
        }
        return std::nullopt;
    }
    /// What a valid deck can do without.
    static bool isRemovable(WmlElement element)
    {
        return element == WmlElement::Paragraph || element == WmlElement::Bold
            || element == WmlElement::Link || element == WmlElement::Table
            || element == WmlElement::Select || element == WmlElement::Do;
    }
    std::optional<Edit> changeAttribute()
    {
        const auto& piece = pieces_[at_];
        if (piece.kind != Kind::Start) return std::nullopt;
        for (const auto& name : {"title=\"", "href=\"", "onpick=\"", "label=\""}) {
            const auto found = piece.text.find(name);
            if (found == std::string_view::npos) continue;
            const auto begin = beginOf(at_) + found + std::string(name).size();
            const auto end = text_.find('"', begin);
            return Edit{"change an attribute", begin, end, "neu", 8 * (end - begin), 3};
        }
        return std::nullopt;
    }

    std::string text_;
    std::vector<DesignPiece> pieces_;
    test::SmallRandom& random_;
    std::size_t at_ = 0;
};

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
    Editor editor(ReadDesignText(deck.session, area), random);
    const auto edit = editor.next();
    if (!edit) return;
    SCOPED_TRACE(edit->name + " in area " + std::to_string(area));
    const auto text = editor.edited(*edit);
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
