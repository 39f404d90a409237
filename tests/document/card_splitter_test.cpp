#include "document/card_splitter.h"

#include "document/text/failure.h"
#include "literal/corrections.h"
#include "literal/search.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using literal::find;

const std::string kCorrected
    = R"(<card id="Korrigiert" title="Nicht festgelegt" newcontext="true">)";

std::string told(const CardSource& card)
{
    return card.head + "|" + card.doBlock + "|" + card.body + "\n";
}

std::string splitFast(const std::string& text)
{
    CardSplitter cards(text);
    std::string result;
    while (cards.hasMore())
        result += told(cards.next().value_or(CardSource{}));
    return result;
}

std::size_t secondCard(const std::string& text)
{
    const auto first = find(text, "<card");
    return first == npos ? npos : find(text, "<card", first + 1);
}

/// Heads the text where its first card cannot be made out.
void correctHead(std::string& text)
{
    const auto first = find(text, "<card");
    const auto end = find(text, "</card");
    if (!(first < end) || (secondCard(text) != npos && secondCard(text) < end))
        text.insert(0, kCorrected);
}

/// Puts in the end of the card whose head is cut off already; false where that cannot be.
bool correctEnd(std::string& text)
{
    const auto end = find(text, "</card");
    if (end != npos && !(secondCard(text) < end)) return true;
    if (find(text, "<card") == npos) {
        text += "</card>";
        return true;
    }
    if (secondCard(text) == npos) return false;
    text.insert(secondCard(text), "</card>");
    return true;
}

std::string cutTo(std::string& text, std::size_t offset)
{
    std::string cut = text.substr(0, offset);
    text.erase(0, offset);
    return cut;
}

std::string splitByCutting(std::string text)
{
    std::string result;
    while (true) {
        const auto atStart = text;
        correctHead(text);
        const auto close = text.find('>', find(text, "<card"));
        if (close == npos) return result + told({});
        CardSource card;
        card.head = cutTo(text, close + 1);
        card.doBlock = literal::TakeDoBlock(text);
        const bool isWhole = correctEnd(text);
        if (isWhole) {
            card.body = cutTo(text, find(text, "</card"));
            if (text.find('>') != npos) cutTo(text, text.find('>') + 1);
            result += told(card);
        }
        text = literal::trim(text);
        if (find(text, "<card") == npos || text == atStart) return result;
    }
}

TEST(CardSplitter, AgreesWithRepeatedCutting)
{
    constexpr std::string_view kTokens[] = {"<card>", "<CARD id=\"a\">", "</card>", "</card",
        "<card", "<do>", "</do>", ">", "x", " ", "</do", "<ca", "rd>"};
    const auto expectSame
        = [](const std::string& text) { ASSERT_EQ(splitFast(text), splitByCutting(text)) << text; };
    test::forEachSequence(kTokens, 4, expectSame);
    for (std::uint64_t seed = 0; seed < 20000 && !testing::Test::HasFatalFailure(); ++seed)
        expectSame(test::randomSoup(seed, kTokens, 5 + seed % 20));
}

TEST(CardSplitter, EndsWhereTheTextIsTooLong)
{
    EXPECT_THROW(CardSplitter(std::string(32768, 'x')), Overflow);
    CardSplitter withoutCard(std::string(32767, 'x')); // no room for the head
    EXPECT_THROW(static_cast<void>(withoutCard.next()), Overflow);
}

} // namespace
} // namespace quillmere
