// A broken deck is mended before it is taken apart, so that all that follows knows well-formed
// decks only. Held by standard_road_test.cpp.

#include "document/standard/standard_deck.h"

#include "document/standard/card_changes.h"
#include "document/standard/new_layout.h"
#include "document/standard/piece_alignment.h"
#include "document/standard/renamed_cards.h"
#include "document/standard/tag_changes.h"
#include "document/text/limits.h"
#include "document/wml/wml_tree.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using Kind = WmlToken::Kind;

constexpr std::string_view kNewDeck = "<?xml version=\"1.0\"?>\r\n"
                                      "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\""
                                      " \"http://www.wapforum.org/DTD/wml_1.1.xml\">\r\n"
                                      "<wml>\r\n"
                                      "</wml>\r\n";
constexpr std::string_view kEmptyCard
    = "<card id=\"Bereich1\" title=\"Nicht festgelegt\"><p></p></card>";

std::string ofAllowedLength(std::string file)
{
    requireDeckLength(file.size());
    return file;
}

/// The cards of a deck, but for those within others.
std::vector<std::uint32_t> cardsIn(const DeckTokens& deck)
{
    std::vector<std::uint32_t> cards;
    for (std::uint32_t i = 0; i < deck.tokens.size(); ++i) {
        const auto& token = deck.tokens[i];
        const bool isStart = token.kind == Kind::StartTag || token.kind == Kind::EmptyTag;
        if (!isStart || token.element != WmlElement::Card) continue;
        cards.push_back(i);
        i = std::max(i, deck.partners[i]);
    }
    return cards;
}

std::uint32_t withSpaceAhead(std::span<const WmlToken> tokens, std::uint32_t index)
{
    return index > 0 && tokens[index - 1].kind == Kind::Space ? index - 1 : index;
}

/// The last end tag of the deck itself; behind the last token where there is none.
std::uint32_t endOfDeck(std::span<const WmlToken> tokens)
{
    const auto isEnd = [](const WmlToken& token) {
        return token.kind == Kind::EndTag && token.element == WmlElement::Wml;
    };
    const auto last = std::find_if(tokens.rbegin(), tokens.rend(), isEnd);
    if (last == tokens.rend()) return static_cast<std::uint32_t>(tokens.size());
    return static_cast<std::uint32_t>(last.base() - tokens.begin()) - 1;
}

/// Puts the cards of a deck into their places, from left to right.
class DeckWriter {
public:
    DeckWriter(const DeckOfCards& deck, std::span<const std::uint32_t> cards)
        : deck_(deck)
        , cards_(cards)
        , result_(deck.tokens.tokens)
    {
    }
    /// Tells whether anything changed.
    bool write(std::span<const AreaText> areas);
    [[nodiscard]] TokenWriter& result() { return result_; }

private:
    void copyTo(std::uint32_t token);
    [[nodiscard]] std::uint32_t beginOf(std::uint32_t card) const;
    [[nodiscard]] std::uint32_t placeOfFirst() const;
    void goTo(std::uint32_t card);
    void goToFirst(std::uint32_t card);

    const DeckOfCards& deck_;
    std::span<const std::uint32_t> cards_;
    TokenWriter result_;
    CardRenames renames_;
    std::uint32_t copied_ = 0; ///< the token up to which all is decided
    std::uint32_t nextCard_ = 0;
};

/// The card's first token: the white space ahead of it, by which it is laid out.
std::uint32_t DeckWriter::beginOf(std::uint32_t card) const
{
    return withSpaceAhead(deck_.tokens.tokens, cards_[card]);
}

/// Where a card stands in a deck that has none.
std::uint32_t DeckWriter::placeOfFirst() const
{
    return withSpaceAhead(deck_.tokens.tokens, endOfDeck(deck_.tokens.tokens));
}

/// Copies what stands between cards, up to the white space ahead of a card or of the deck's end;
/// cards that are passed over go.
void DeckWriter::goTo(std::uint32_t card)
{
    for (; nextCard_ < card; ++nextCard_) {
        copyTo(beginOf(nextCard_));
        copied_ = deck_.tokens.partners[cards_[nextCard_]] + 1;
    }
}

/// Goes to where an area stands that is ahead of the one at the place of `card`, or of none.
void DeckWriter::goToFirst(std::uint32_t card)
{
    const auto count = static_cast<std::uint32_t>(cards_.size());
    if (card < count) goTo(card);
    copyTo(count == 0 ? placeOfFirst() : beginOf(card < count ? card : 0));
}

/// Copies what stands outside of cards. What leads to a renamed card leads to it still.
void DeckWriter::copyTo(std::uint32_t token)
{
    for (auto i = copied_; i < token && !renames_.empty(); ++i) {
        const auto& tag = deck_.tokens.tokens[i];
        if (tag.kind != Kind::StartTag && tag.kind != Kind::EmptyTag) continue;
        auto renamed = renamedTag(tag, renames_, deck_);
        if (!renamed) continue;
        result_.copy(copied_, i);
        result_.put(std::move(*renamed));
        copied_ = i + 1;
    }
    if (token <= copied_) return;
    result_.copy(copied_, token);
    copied_ = token;
}

bool DeckWriter::write(std::span<const AreaText> areas)
{
    renames_ = renamedCards(areas);
    std::vector<std::uint32_t> order(areas.size());
    std::ranges::transform(areas, order.begin(), &AreaText::card);
    const auto inPlace = risingPart(order);
    bool isChanged = inPlace.size() != areas.size() || areas.size() != cards_.size();
    auto next = inPlace.begin();
    const auto count = static_cast<std::uint32_t>(cards_.size());
    for (std::uint32_t i = 0; i < areas.size(); ++i) {
        const auto card = next == inPlace.end() ? count : order[*next];
        if (next != inPlace.end() && *next == i) {
            ++next;
            goTo(card);
            copyTo(cards_[card]);
            copied_ = deck_.tokens.partners[cards_[card]] + 1;
            nextCard_ = card + 1;
        } else {
            if (i == 0) goToFirst(card); // all others follow their neighbour
            if (order[i] != kNoCard) result_.copy(beginOf(order[i]), cards_[order[i]]);
        }
        isChanged |= writeCard(deck_, areas[i].opened, areas[i].design, result_);
    }
    goTo(count);
    copyTo(static_cast<std::uint32_t>(deck_.tokens.tokens.size()));
    return isChanged;
}

} // namespace

StandardDeck::StandardDeck()
    : bytes_(std::string(kNewDeck))
{
    readText(bytes_.text());
}

StandardDeck::StandardDeck(std::string file)
    : bytes_(ofAllowedLength(std::move(file)))
{
    mend();
    if (cards_.empty()) addMissingCard();
}

void StandardDeck::mend()
{
    auto tree = buildWmlTree(readWmlTokens(bytes_.text()), bytes_);
    mends_ = std::move(tree.mends);
    if (!mends_.empty()) mended_ = writeWml(tree, bytes_);
    readText(mends_.empty() ? bytes_.text() : mended_);
}

void StandardDeck::readText(std::string_view text)
{
    tokens_ = withPartners(readWmlTokens(text));
    cards_ = cardsIn(tokens_);
    manner_ = mannerOf(tokens_.tokens, tokens_.entities);
}

/// Puts a card in ahead of the deck's end.
void StandardDeck::addMissingCard()
{
    std::string text;
    const auto end = endOfDeck(tokens_.tokens);
    for (std::uint32_t i = 0; i < tokens_.tokens.size(); ++i) {
        const auto& token = tokens_.tokens[i];
        const bool isWhole = token.element == WmlElement::Wml && token.kind == Kind::EmptyTag;
        if (i == end) text += kEmptyCard;
        if (isWhole)
            text.append(openedTag(token.source)).append(kEmptyCard).append("</wml>");
        else
            text += token.source;
    }
    mended_ = std::move(text);
    readText(mended_);
    if (cards_.empty())
        readText(mended_ = std::string(kNewDeck).insert(kNewDeck.find("</"), kEmptyCard));
}

OpenedCard StandardDeck::open(std::size_t card, const PictureRoads& roads) const
{
    return openCard(tokens_, cards_[card], bytes_, roads);
}

std::string StandardDeck::written(std::span<const AreaText> areas, const PictureRoads& roads) const
{
    const DeckOfCards deck{tokens_, bytes_, manner_, roads};
    DeckWriter writer(deck, cards_);
    if (!writer.write(areas)) return bytes_.file();
    auto tokens = writer.result().take();
    const auto count = static_cast<std::uint32_t>(tokens.size());
    auto tree = buildWmlTree(std::move(tokens), bytes_);
    layOutNewElements(tree, count, cards_.empty());
    auto file = bytes_.fileOf(writeWml(tree, bytes_));
    requireDeckLength(file.size());
    return file;
}

} // namespace quillmere
