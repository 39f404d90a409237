// Held by standard_road_test.cpp.

#include "document/standard/card_pieces.h"

#include "document/standard/card_order.h"
#include "document/standard/new_runs.h"
#include "document/standard/piece_alignment.h"
#include "document/text/content_hash.h"
#include "document/text/windows1252.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = DesignPiece::Kind;
using Pieces = std::vector<DesignPiece>;
using Keys = std::vector<std::uint64_t>;

constexpr std::string_view kNewMarker = "<!--card-->";

DesignPiece cardEnd()
{
    return {Kind::End, WmlElement::Card, {}, "card", 0};
}

bool isMarkerOfCard(const DesignPiece& piece)
{
    return piece.element == WmlElement::Card && piece.kind == Kind::Start;
}

/// The pieces of the text with the card's marker in front: an area is a card, also where its marker
/// was lost.
Pieces readCard(std::string_view design, const DesignPiece& lostMarker)
{
    auto pieces = readDesignPieces(design);
    const auto isSpace = [](const DesignPiece& piece) { return piece.kind == Kind::Space; };
    pieces.erase(pieces.begin(), std::ranges::find_if_not(pieces, isSpace));
    const auto marker = std::ranges::find_if(pieces, isMarkerOfCard);
    if (marker == pieces.end())
        pieces.insert(pieces.begin(), lostMarker);
    else
        std::rotate(pieces.begin(), marker, marker + 1);
    pieces.push_back(cardEnd());
    return pieces;
}

/// Reads the text as it was opened. A piece takes the tokens of all that was made from its place
/// to the next piece.
void readThen(CardPieces& card, const OpenedCard& opened)
{
    card.then = readDesignPieces(opened.text);
    card.tokens.resize(card.then.size());
    const auto* made = opened.pieces.data();
    const auto* const end = made + opened.pieces.size() - 1; // the card's end
    for (std::size_t i = 0; i < card.then.size(); ++i) {
        const bool isLast = i + 1 == card.then.size();
        const auto limit = isLast
            ? opened.text.size()
            : static_cast<std::size_t>(card.then[i + 1].text.data() - opened.text.data());
        const auto before = i == 0 ? 0 : card.tokens[i - 1].behind;
        card.tokens[i] = {before, before, before, before}; // for one that nothing was made from
        for (bool isFirst = true; made < end && made->begin < limit; ++made, isFirst = false) {
            if (isFirst) card.tokens[i] = made->tokens;
            card.tokens[i].behindMain = made->tokens.behindMain;
            card.tokens[i].behind = made->tokens.behind;
        }
    }
    card.then.push_back(cardEnd());
    card.tokens.push_back(end->tokens);
}

Keys keysOf(const Pieces& pieces)
{
    Keys keys(pieces.size());
    std::ranges::transform(pieces, keys.begin(), &DesignPiece::key);
    return keys;
}

std::vector<PieceTurn> turnsOf(const Pieces& pieces)
{
    std::vector<PieceTurn> turns(pieces.size());
    std::ranges::transform(pieces, turns.begin(), [](const DesignPiece& piece) {
        if (piece.kind == Kind::Start) return PieceTurn::Opens;
        return piece.kind == Kind::End ? PieceTurn::Closes : PieceTurn::None;
    });
    return turns;
}

void align(CardPieces& card)
{
    const auto then = keysOf(card.then);
    const auto now = keysOf(card.now);
    card.places = alignPieces(then, now);
    settleRuns(now, turnsOf(card.now), card.places);
    auto back = inverted(card.places, then.size());
    settleRuns(then, turnsOf(card.then), back);
    card.places = inverted(back, now.size());
}

/// What a changed tag or atom must have in common with what it was; other pieces have nothing.
std::uint64_t sortKey(const DesignPiece& piece, std::uint64_t otherwise)
{
    const bool isSorted
        = piece.kind == Kind::Start || piece.kind == Kind::Single || piece.kind == Kind::Atom;
    if (!isSorted) return otherwise;
    return contentHash(lowerCase(piece.name)) * (static_cast<unsigned>(piece.kind) + 3);
}

/// What lies between two pieces that stayed.
struct Gap {
    std::uint32_t thenBegin;
    std::uint32_t thenEnd;
    std::uint32_t nowBegin;
    std::uint32_t nowEnd;
};

void pairTags(CardPieces& card, const Gap& gap)
{
    Keys then;
    Keys now;
    for (auto i = gap.thenBegin; i < gap.thenEnd; ++i)
        then.push_back(sortKey(card.then[i], 1));
    for (auto i = gap.nowBegin; i < gap.nowEnd; ++i)
        now.push_back(sortKey(card.now[i], 2));
    const auto places = alignPieces(then, now);
    for (std::size_t i = 0; i < places.size(); ++i)
        if (places[i] != kNoPiece) card.changedFrom[gap.nowBegin + i] = gap.thenBegin + places[i];
}

std::vector<std::uint32_t> blanksIn(const Pieces& pieces, std::uint32_t begin, std::uint32_t end)
{
    std::vector<std::uint32_t> blanks;
    for (auto i = begin; i < end; ++i)
        if (pieces[i].kind == Kind::Space) blanks.push_back(i);
    return blanks;
}

void pairBlanks(CardPieces& card, const Gap& gap)
{
    const auto then = blanksIn(card.then, gap.thenBegin, gap.thenEnd);
    const auto now = blanksIn(card.now, gap.nowBegin, gap.nowEnd);
    if (now.size() == 1 && !then.empty()) card.blanksFrom[now.front()] = then;
    if (now.size() == 1 || now.size() != then.size()) return;
    for (std::size_t i = 0; i < now.size(); ++i)
        card.blanksFrom[now[i]] = {then[i]};
}

void pairGap(CardPieces& card, const Gap& gap)
{
    if (gap.thenBegin >= gap.thenEnd || gap.nowBegin >= gap.nowEnd) return;
    pairTags(card, gap);
    pairBlanks(card, gap);
}

void pairChanged(CardPieces& card)
{
    card.changedFrom.assign(card.now.size(), kNoPiece);
    std::uint32_t then = 0;
    std::uint32_t now = 0;
    for (std::uint32_t i = 0; i < card.now.size(); ++i) {
        if (card.places[i] == kNoPiece) continue;
        pairGap(card, {then, card.places[i], now, i});
        then = card.places[i] + 1;
        now = i + 1;
    }
    if (!card.then.empty() && card.places.front() == kNoPiece) card.changedFrom.front() = 0;
}

template <class Item>
std::vector<Item> inOrder(const std::vector<Item>& items, const std::vector<std::uint32_t>& order)
{
    std::vector<Item> result(items.size());
    std::ranges::transform(
        order, result.begin(), [&](std::uint32_t index) { return items[index]; });
    return result;
}

/// White space that was moved is written as blanks. What only changed is not new.
void reorder(CardPieces& card)
{
    auto known = card.places;
    for (std::size_t i = 0; i < known.size(); ++i)
        if (known[i] == kNoPiece) known[i] = card.changedFrom[i];
    const auto order = orderedPieces(card.now, known);
    if (std::ranges::is_sorted(order)) return;
    card.now = inOrder(card.now, order);
    card.places = inOrder(card.places, order);
    card.changedFrom = inOrder(card.changedFrom, order);
    card.blanksFrom.clear();
}

} // namespace

CardPieces compareCard(const OpenedCard* opened, std::string_view design)
{
    CardPieces card;
    if (opened != nullptr) readThen(card, *opened);
    const auto lost = readDesignPieces(kNewMarker).front();
    card.now = readCard(design, card.then.empty() ? lost : card.then.front());
    align(card);
    pairChanged(card);
    reorder(card);
    return card;
}

bool isUnchanged(const CardPieces& pieces)
{
    return std::ranges::equal(pieces.then, pieces.now, {}, &DesignPiece::text, &DesignPiece::text)
        || std::ranges::equal(pieces.then, pieces.now, {}, &DesignPiece::key, &DesignPiece::key);
}

} // namespace quillmere
