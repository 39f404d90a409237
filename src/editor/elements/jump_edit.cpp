// Held by jump_edit_test.cpp.

#include "editor/elements/jump_edit.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "editor/elements/element_edit.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::string_view kNoBegin = "0123456789-.";
constexpr std::string_view kGermanLetters = "\xE4\xF6\xFC\xDF"; // ä ö ü ß

std::string targetValue(std::string_view id, char quote = '"')
{
    return std::string("=").append(1, quote).append("#").append(id).append(1, quote);
}

std::string cardId(std::string_view id)
{
    return std::string("<!--card id=\"").append(id).append("\"");
}

/// As the temporary radio button of an option has it.
std::string buttonTarget(std::string_view id)
{
    return std::string("navigate('#").append(id).append("')");
}

std::string replaced(std::string_view text, std::string_view old, std::string_view now)
{
    Rewriter result(text);
    for (auto at = text.find(old); at != npos; at = text.find(old, at + old.size())) {
        result.drop(at, at + old.size());
        result.append(now);
    }
    return result.take();
}

bool fitsCardId(char character)
{
    const char lower = lowerCase(character);
    return (lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9') || lower == '_'
        || lower == '-' || lower == '.' || kGermanLetters.find(lower) != npos;
}

} // namespace

std::string withoutDoBlock(std::string_view text, const OutputRules& rules)
{
    const auto jump = findIgnoringCase(text, "<!--do type=\"accept\"");
    const auto begin = jump != npos ? jump : findIgnoringCase(text, "<!--do");
    const auto end = begin == npos ? std::nullopt : findTagFrom(text, "<!--/do", begin);
    return end ? withPiece(text, {begin, end->end}, {}, rules) : std::string(text);
}

std::string withTargetsRenamed(
    std::string_view text, std::string_view oldId, std::string_view newId, const OutputRules& rules)
{
    auto renamed = replaced(text, targetValue(oldId), targetValue(newId));
    if (rules.losesNothing()) // an element that stands whole in a marker has its own quotes
        renamed = replaced(renamed, targetValue(oldId, '\''), targetValue(newId, '\''));
    renamed = replaced(renamed, buttonTarget(oldId), buttonTarget(newId));
    requireAddressable(renamed, rules.maxTextLength());
    return renamed;
}

std::string stateWithIdRenamed(std::string_view state, std::string_view oldId,
    std::string_view newId, const OutputRules& rules)
{
    const auto own = replaced(state, cardId(oldId), cardId(newId));
    return withTargetsRenamed(own, oldId, newId, rules);
}

bool leadsTo(std::string_view text, std::string_view id)
{
    return text.find(targetValue(id)) != npos || text.find(targetValue(id, '\'')) != npos;
}

CardIdFault cardIdFault(std::string_view id)
{
    if (id.empty()) return CardIdFault::Empty;
    if (kNoBegin.find(id.front()) != npos) return CardIdFault::BadBegin;
    return std::ranges::all_of(id, fitsCardId) ? CardIdFault::None : CardIdFault::BadCharacter;
}

} // namespace quillmere
