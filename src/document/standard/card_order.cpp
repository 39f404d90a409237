// Held by standard_road_test.cpp.

#include "document/standard/card_order.h"

#include "document/standard/piece_alignment.h"

#include <algorithm>
#include <numeric>

namespace quillmere {

namespace {

using Kind = DesignPiece::Kind;

enum class Rank : std::uint8_t { Event, Timer, Body, Neutral };

/// An element of the card, a word or white space.
struct Item {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    Rank rank = Rank::Neutral;
    bool isNew = false;
    [[nodiscard]] bool isHead() const { return rank == Rank::Event || rank == Rank::Timer; }
};

Rank rankOf(const DesignPiece& piece)
{
    if (piece.kind == Kind::Space) return Rank::Neutral;
    if (piece.kind != Kind::Atom) return Rank::Body;
    if (piece.element == WmlElement::OnEvent) return Rank::Event;
    if (piece.element == WmlElement::Timer) return Rank::Timer;
    return piece.element == WmlElement::Other ? Rank::Neutral : Rank::Body;
}

std::vector<Item> itemsOf(
    std::span<const DesignPiece> pieces, std::span<const std::uint32_t> places)
{
    std::vector<Item> items;
    int depth = 0;
    for (std::uint32_t i = 1; i + 1 < pieces.size(); ++i) {
        if (depth == 0) items.push_back({i, i, rankOf(pieces[i]), places[i] == kNoPiece});
        items.back().end = i + 1;
        if (pieces[i].kind == Kind::Start) ++depth;
        if (pieces[i].kind == Kind::End && depth > 0) --depth;
    }
    return items;
}

bool isInOrder(std::span<const Item> items)
{
    const auto rank = [](const Item& item) { return item.rank; };
    std::vector<Item> ranked;
    std::ranges::copy_if(items, std::back_inserter(ranked),
        [](const Item& item) { return item.rank != Rank::Neutral; });
    return std::ranges::is_sorted(ranked, {}, rank);
}

/// Takes the items out that `goes` names, and gives them.
template <class Goes> std::vector<Item> takeOut(std::vector<Item>& items, const Goes& goes)
{
    std::vector<Item> taken;
    std::ranges::copy_if(items, std::back_inserter(taken), goes);
    std::erase_if(items, goes);
    return taken;
}

void insert(std::vector<Item>& items, std::vector<Item>::iterator at, const std::vector<Item>& more)
{
    items.insert(at, more.begin(), more.end());
}

void order(std::vector<Item>& items)
{
    const auto isOldHead = [](const Item& item) { return item.isHead() && !item.isNew; };
    const auto behindHead = std::find_if(items.rbegin(), items.rend(), isOldHead).base();
    std::vector<Item> head(items.begin(), behindHead);
    std::vector<Item> body(behindHead, items.end());
    const auto late = takeOut(head, [](const Item& i) { return i.isNew && i.rank == Rank::Body; });
    const auto events
        = takeOut(body, [](const Item& i) { return i.isNew && i.rank == Rank::Event; });
    const auto timers
        = takeOut(body, [](const Item& i) { return i.isNew && i.rank == Rank::Timer; });
    const auto timer = std::ranges::find(head, Rank::Timer, &Item::rank);
    insert(head, timer, events);
    insert(head, head.end(), timers);
    insert(head, head.end(), late);
    insert(head, head.end(), body);
    items = std::move(head);
}

} // namespace

std::vector<std::uint32_t> orderedPieces(
    std::span<const DesignPiece> pieces, std::span<const std::uint32_t> places)
{
    std::vector<std::uint32_t> result(pieces.size());
    std::iota(result.begin(), result.end(), 0U);
    auto items = itemsOf(pieces, places);
    auto old = items;
    std::erase_if(old, [](const Item& item) { return item.isNew; });
    if (isInOrder(items) || !isInOrder(old)) return result;
    order(items);
    auto next = result.begin() + 1;
    for (const auto& item : items)
        for (auto i = item.begin; i < item.end; ++i)
            *next++ = i;
    return result;
}

} // namespace quillmere
