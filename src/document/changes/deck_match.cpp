// Items become numbers, equal ones the same, and the sequences of numbers are matched: first whole
// tags, then, in the gaps that are left, tags by their names alone. What is left then is looked up
// by card and number. Held by deck_changes_test.cpp.

#include "document/changes/deck_match.h"

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>

namespace quillmere {

namespace {

using Kind = DeckItem::Kind;

class Numbering {
public:
    int of(Kind kind, std::string key)
    {
        key += static_cast<char>('0' + static_cast<int>(kind));
        return numbers_.emplace(std::move(key), static_cast<int>(numbers_.size())).first->second;
    }

private:
    std::unordered_map<std::string, int> numbers_;
};

struct Numbered {
    std::vector<int> whole; // by name and attributes
    std::vector<int> named; // by name
};

Numbered numberItems(const DeckItems& deck, Numbering& numbering)
{
    Numbered numbered;
    for (const auto& item : deck.items) {
        numbered.named.push_back(numbering.of(item.kind, item.name));
        numbered.whole.push_back(item.kind == Kind::Start ? numbering.of(item.kind, deck.key(item))
                                                          : numbered.named.back());
    }
    return numbered;
}

/// The card start at or ahead of each item.
std::vector<std::size_t> cardOfItems(const DeckItems& deck)
{
    std::vector<std::size_t> cards;
    std::size_t card = kNoItem;
    for (std::size_t i = 0; i < deck.items.size(); ++i) {
        if (deck.items[i].kind == Kind::Start && deck.items[i].name == "card") card = i;
        cards.push_back(card);
    }
    return cards;
}

class Matcher {
public:
    Matcher(const DeckItems& read, const DeckItems& written)
        : read_(read)
        , written_(written)
        , readNumbers_(numberItems(read, numbering_))
        , writtenNumbers_(numberItems(written, numbering_))
    {
        match_.written.assign(read.items.size(), kNoItem);
        match_.read.assign(written.items.size(), kNoItem);
        match_.moved.assign(read.items.size(), false);
    }

    DeckMatch run()
    {
        matchInOrder();
        tieEnds();
        findMoved(readNumbers_.whole, writtenNumbers_.whole, true);
        findMoved(readNumbers_.named, writtenNumbers_.named, true);
        tieEnds();
        partEnds();
        findMoved(readNumbers_.named, writtenNumbers_.named, false);
        return std::move(match_);
    }

private:
    void pair(std::size_t read, std::size_t written)
    {
        match_.written[read] = written;
        match_.read[written] = read;
    }

    void matchInOrder()
    {
        MatchedPair from;
        auto whole = matchSequences(readNumbers_.whole, writtenNumbers_.whole);
        whole.push_back({read_.items.size(), written_.items.size()});
        for (const auto& found : whole) {
            matchGap(from, found);
            if (found.left < read_.items.size()) match_.anchors.push_back(found);
            from = {found.left + 1, found.right + 1};
        }
        for (const auto& anchor : match_.anchors)
            pair(anchor.left, anchor.right);
    }

    void matchGap(MatchedPair from, MatchedPair to)
    {
        if (from.left == to.left || from.right == to.right) return;
        const auto read = std::span(readNumbers_.named).subspan(from.left, to.left - from.left);
        const auto written
            = std::span(writtenNumbers_.named).subspan(from.right, to.right - from.right);
        for (const auto& found : matchSequences(read, written))
            match_.anchors.push_back({found.left + from.left, found.right + from.right});
    }

    /// Matching by order may take the end of one element for that of another of the same name.
    void tieEnds()
    {
        for (std::size_t i = 0; i < read_.items.size(); ++i) {
            const auto j = match_.written[i];
            if (read_.items[i].kind != Kind::Start || j == kNoItem) continue;
            const auto end = read_.items[i].partner;
            const auto writtenEnd = written_.items[j].partner;
            if (end != kNoItem && writtenEnd != kNoItem) tie(i, end, writtenEnd);
        }
    }

    void tie(std::size_t start, std::size_t end, std::size_t writtenEnd)
    {
        const auto other = match_.written[end];
        const auto writtenOther = match_.read[writtenEnd];
        if (other == writtenEnd) return;
        if (other == kNoItem && writtenOther == kNoItem) match_.moved[end] = !match_.moved[start];
        if (other != kNoItem) match_.read[other] = kNoItem;
        if (writtenOther != kNoItem) match_.written[writtenOther] = kNoItem;
        pair(end, writtenEnd);
    }

    /// An end whose start is lost goes with it, and that of a start that is added comes with it. So
    /// neither is the like of an end that stands without a start: "<b>x</b>" became "x</b>" by
    /// losing an element and getting an end tag.
    void partEnds()
    {
        for (std::size_t i = 0; i < read_.items.size(); ++i) {
            const auto j = match_.written[i];
            if (j == kNoItem || read_.items[i].kind != Kind::End) continue;
            if (standsAlone(read_.items[i], match_.written)
                == standsAlone(written_.items[j], match_.read))
                continue;
            match_.written[i] = kNoItem;
            match_.read[j] = kNoItem;
            match_.moved[i] = false;
        }
    }

    /// Whether the item is told on its own if it is found nowhere.
    [[nodiscard]] static bool standsAlone(
        const DeckItem& item, const std::vector<std::size_t>& matches)
    {
        return item.kind != Kind::End || item.partner == kNoItem
            || matches[item.partner] != kNoItem;
    }

    void findMoved(const std::vector<int>& read, const std::vector<int>& written, bool starts)
    {
        std::map<std::pair<std::size_t, int>, std::vector<std::size_t>> waiting;
        for (auto j = written_.items.size(); j-- > 0;) {
            if (match_.read[j] != kNoItem || !standsAlone(written_.items[j], match_.read)) continue;
            const auto card = writtenCards_[j];
            waiting[{card == kNoItem ? kNoItem : match_.read[card], written[j]}].push_back(j);
        }
        for (std::size_t i = 0; i < read_.items.size(); ++i) {
            const auto& item = read_.items[i];
            if (starts != (item.kind == Kind::Start)) continue;
            if (match_.written[i] != kNoItem || !standsAlone(item, match_.written)) continue;
            const auto found = waiting.find({knownCard(i), read[i]});
            if (found == waiting.end() || found->second.empty()) continue;
            pair(i, found->second.back());
            match_.moved[i] = true;
            found->second.pop_back();
        }
    }

    /// The item's card; kNoItem for none and for one that is lost.
    [[nodiscard]] std::size_t knownCard(std::size_t item) const
    {
        const auto card = readCards_[item];
        return card == kNoItem || match_.written[card] == kNoItem ? kNoItem : card;
    }

    const DeckItems& read_;
    const DeckItems& written_;
    Numbering numbering_;
    Numbered readNumbers_;
    Numbered writtenNumbers_;
    std::vector<std::size_t> readCards_ = cardOfItems(read_);
    std::vector<std::size_t> writtenCards_ = cardOfItems(written_);
    DeckMatch match_;
};

} // namespace

DeckMatch matchItems(const DeckItems& read, const DeckItems& written)
{
    return Matcher(read, written).run();
}

} // namespace quillmere
