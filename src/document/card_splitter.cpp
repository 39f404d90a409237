// The rest of the text is never copied: a card is taken by moving its begin on, and what would be
// put into it only to be cut off again is not put in. The tags that matter are found once. Held by
// card_splitter_test.cpp, which splits with repeated searches over a text that is cut and put
// together in each step.

#include "document/card_splitter.h"

#include "document/repair/do_block.h"
#include "document/text/character_walk.h"
#include "document/text/limits.h"
#include "document/text/tag_keys.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quillmere {
namespace {

constexpr std::string_view kCardEnd = "</card";
constexpr SearchKey kMarks[] = {"<card", kCardEnd, "<do"}; // as Mark tells them
constexpr std::string_view kCorrectedHead
    = R"(<card id="Korrigiert" title="Nicht festgelegt" newcontext="true">)";

/// By the first letter. Most tags are others.
bool mayBeMark(const std::string& text, std::size_t at)
{
    const std::size_t slash = text[at + 1] == '/' ? 1 : 0; // a zero where the text ends
    const char letter = lowerCase(text[at + 1 + slash]);
    return letter == 'c' || letter == 'd';
}

} // namespace

CardSplitter::CardSplitter(std::string text)
    : text_(std::move(text))
    , end_(text_.size())
{
    requireAddressable(text_);
    findMarks(begin_, end_);
}

std::optional<CardSource> CardSplitter::next()
{
    // A tag such as "<card </card>" hides its end: the card that follows takes the place of its
    // own.
    while (true) {
        CardSource card;
        const auto sizeAtStart = rest().size();
        const auto round = takeCard(card);
        trimRest();
        // A round that leaves the text as it was would be followed by the same one for ever.
        hasMore_
            = round != Round::HeadOpen && rest().size() != sizeAtStart && next(Mark::Card) != npos;
        if (round == Round::CardTaken) return card;
        if (round == Round::HeadOpen) return std::nullopt;
    }
}

CardSplitter::Round CardSplitter::takeCard(CardSource& card)
{
    if (!takeHead(card.head)) return Round::HeadOpen;
    card.doBlock = takeDoBlock();
    return takeBody(card.body) ? Round::CardTaken : Round::Abandoned;
}

bool CardSplitter::takeHead(std::string& head)
{
    const auto card = next(Mark::Card);
    const auto cardEnd = next(Mark::CardEnd);
    // npos is the greatest offset, so that comparisons hold for what is missing, too.
    const bool isWhole = card < cardEnd && secondCard() >= cardEnd;
    if (!isWhole) {
        requireAddressableLength(rest().size() + kCorrectedHead.size());
        head = kCorrectedHead;
        return true;
    }
    const auto close = text_.find('>', card);
    if (close == npos) return false;
    head = takeTo(close + 1);
    return true;
}

std::string CardSplitter::takeDoBlock()
{
    const auto cardEnd = next(Mark::CardEnd);
    const auto first = next(Mark::Do);
    if (cardEnd == npos || first > cardEnd || cardEnd == endWithoutDo_) return {};
    auto block = text_.substr(
        first, doBlockLength(std::string_view(text_).substr(first, cardEnd - first)));
    if (block.empty()) {
        endWithoutDo_ = cardEnd;
        return block;
    }
    // What stands ahead of the block moves up to its end, so that all offsets behind stay valid.
    const auto ahead = text_.substr(begin_, first - begin_);
    begin_ += block.size();
    text_.replace(begin_, ahead.size(), ahead);
    findMarks(begin_, begin_ + ahead.size());
    return block;
}

bool CardSplitter::takeBody(std::string& body)
{
    const auto second = secondCard();
    const auto cardEnd = next(Mark::CardEnd);
    if (cardEnd != npos && second > cardEnd) {
        body = takeTo(cardEnd);
        const auto close = text_.find('>', cardEnd);
        if (close != npos) begin_ = close + 1;
        return true;
    }
    if (next(Mark::Card) != npos && second == npos) return false;
    body = takeTo(std::min(second, end_));
    return true;
}

void CardSplitter::trimRest()
{
    while (begin_ < end_ && text_[begin_] == ' ')
        ++begin_;
    while (begin_ < end_ && text_[end_ - 1] == ' ')
        --end_;
}

std::string_view CardSplitter::rest() const
{
    return std::string_view(text_).substr(begin_, end_ - begin_);
}

std::string CardSplitter::takeTo(std::size_t offset)
{
    auto taken = text_.substr(begin_, offset - begin_);
    begin_ = offset;
    return taken;
}

std::size_t CardSplitter::next(Mark mark)
{
    passTo(begin_);
    const auto& places = places_[static_cast<std::size_t>(mark)];
    return places.empty() ? npos : places.back();
}

std::size_t CardSplitter::secondCard()
{
    passTo(begin_);
    const auto& cards = places_[static_cast<std::size_t>(Mark::Card)];
    return cards.size() < 2 ? npos : cards[cards.size() - 2];
}

void CardSplitter::passTo(std::size_t offset)
{
    for (auto& places : places_) {
        while (!places.empty() && places.back() < offset)
            places.pop_back();
    }
}

void CardSplitter::findMarks(std::size_t begin, std::size_t end)
{
    static constexpr TagKeys<kMarkCount> kKeys(kMarks);
    passTo(end);
    std::array<std::ptrdiff_t, kMarkCount> known{};
    std::ranges::transform(places_, known.begin(), [](const Places& p) { return std::ssize(p); });
    CharacterWalk openings(std::string_view(text_).substr(0, end), '<');
    for (auto at = openings.nextFrom(begin); at != npos; at = openings.next()) {
        if (!mayBeMark(text_, at)) continue;
        const auto mark = kKeys.find(tagCode(std::string_view(text_).substr(at)));
        if (mark < kMarkCount) places_.at(mark).push_back(at);
    }
    for (std::size_t mark = 0; mark < kMarkCount; ++mark)
        std::reverse(places_.at(mark).begin() + known.at(mark), places_.at(mark).end());
}

} // namespace quillmere
