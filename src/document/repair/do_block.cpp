// All is searched for ahead of the card's end only, so that what follows is not read.
// Held by corrections_test.cpp.

#include "document/repair/do_block.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"

namespace quillmere {

std::size_t doBlockLength(std::string_view text)
{
    const auto lastEnd = findLastIgnoringCase(text, "</do");
    const auto tagEnd = lastEnd == npos ? npos : text.find('>', lastEnd);
    return tagEnd == npos ? 0 : tagEnd + 1;
}

std::string TakeDoBlock(std::string& text)
{
    requireAddressable(text);
    const auto cardEnd = findIgnoringCase(text, "</card");
    if (cardEnd == npos) return {};
    const std::string_view card = std::string_view(text).substr(0, cardEnd);
    const auto begin = findIgnoringCase(card, "<do");
    if (begin == npos) return {};
    std::string block = text.substr(begin, doBlockLength(card.substr(begin)));
    text.erase(begin, block.size());
    return block;
}

} // namespace quillmere
