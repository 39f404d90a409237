// The rest of the text is never copied: a card is taken by moving its begin on, and what would be
// put into it only to be cut off again is not put in. Held by card_splitter_test.cpp, which splits
// with repeated searches over a text that is cut and put together in each step.

#include "document/card_splitter.h"

#include "document/repair/do_block.h"
#include "document/text/limits.h"

#include <algorithm>

namespace quillmere {
namespace {

constexpr std::string_view kCard = "<card";
constexpr std::string_view kCardEnd = "</card";
constexpr std::string_view kCorrectedHead
    = R"(<card id="Korrigiert" title="Nicht festgelegt" newcontext="true">)";

} // namespace

CardSplitter::CardSplitter(std::string text)
    : text_(std::move(text))
    , end_(text_.size())
    , firstCard_(text_, kCard)
    , secondCard_(text_, kCard)
    , cardEnd_(text_, kCardEnd)
    , firstDo_(text_, "<do")
{
    requireAddressable(text_);
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
        hasMore_ = round != Round::HeadOpen && rest().size() != sizeAtStart
            && firstCard_.next(begin_) != npos;
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
    const auto card = firstCard_.next(begin_);
    const auto cardEnd = cardEnd_.next(begin_);
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
    const auto cardEnd = cardEnd_.next(begin_);
    const auto first = firstDo_.next(begin_);
    if (cardEnd == npos || first > cardEnd || cardEnd == endWithoutDo_) return {};
    std::string part = text_.substr(first, cardEnd + kCardEnd.size() - first);
    auto block = TakeDoBlock(part);
    if (block.empty()) {
        endWithoutDo_ = cardEnd;
        return block;
    }
    // What stands ahead of the block moves up to its end, so that all offsets behind stay valid.
    const auto ahead = text_.substr(begin_, first - begin_);
    begin_ += block.size();
    text_.replace(begin_, ahead.size(), ahead);
    if (!ahead.empty()) forgetPlaces(); // else all that is known of what is left still holds
    return block;
}

bool CardSplitter::takeBody(std::string& body)
{
    const auto second = secondCard();
    const auto cardEnd = cardEnd_.next(begin_);
    if (cardEnd != npos && second > cardEnd) {
        body = takeTo(cardEnd);
        const auto close = text_.find('>', cardEnd);
        if (close != npos) begin_ = close + 1;
        return true;
    }
    if (firstCard_.next(begin_) != npos && second == npos) return false;
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

std::size_t CardSplitter::secondCard()
{
    const auto first = firstCard_.next(begin_);
    return first == npos ? npos : secondCard_.next(first + 1);
}

void CardSplitter::forgetPlaces()
{
    firstCard_ = ForwardFinder(text_, kCard);
    secondCard_ = ForwardFinder(text_, kCard);
    cardEnd_ = ForwardFinder(text_, kCardEnd);
    firstDo_ = ForwardFinder(text_, "<do");
}

} // namespace quillmere
