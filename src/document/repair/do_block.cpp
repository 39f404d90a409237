// All is searched for ahead of the card's end only, so that what follows is not read.
// Held by corrections_test.cpp.

#include "document/repair/do_block.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"

namespace quillmere {

std::string TakeDoBlock(std::string& text)
{
    requireAddressable(text);
    const auto cardEnd = findIgnoringCase(text, "</card");
    if (cardEnd == npos) return {};
    const std::string_view card = std::string_view(text).substr(0, cardEnd);
    const auto begin = findIgnoringCase(card, "<do");
    const auto lastEnd = findLastIgnoringCase(card, "</do");
    if (begin == npos || lastEnd == npos || lastEnd < begin) return {};
    const auto tagEnd = card.find('>', lastEnd);
    if (tagEnd == npos) return {};
    std::string block = text.substr(begin, tagEnd + 1 - begin);
    text.erase(begin, block.size());
    return block;
}

} // namespace quillmere
