// Held by paths_test.cpp.

#include "document/complete_url.h"

#include "document/platform/word_ids.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <array>
#include <optional>

namespace quillmere {

namespace {

// A name without any of these is a card's or a word, and no address.
bool looksLikeAddress(std::string_view text)
{
    return text.find_first_of("\\/") != npos || text.find(".wml") != npos;
}

std::optional<std::string> offerFor(std::string_view address)
{
    if (standsAt(address, 0, "http:")) return std::nullopt;
    if (standsAt(address, 0, "www.")) return "http://" + std::string(address);
    if (!looksLikeAddress(address)) return std::nullopt;
    return "http://www." + std::string(address);
}

} // namespace

std::string CompleteUrl(std::string_view text, Prompter& prompter)
{
    const auto offer = offerFor(trimBlanks(text));
    if (!offer) return std::string(text);
    const std::array gaps{*offer};
    return prompter.ask(word::kCompleteUrl, gaps, MessageIcon::Question) ? *offer
                                                                         : std::string(text);
}

} // namespace quillmere
