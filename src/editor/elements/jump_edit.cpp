// Held by jump_edit_test.cpp.

#include "editor/elements/jump_edit.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "editor/elements/element_edit.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::string_view kGermanLetters = "\xE4\xF6\xFC\xDF"; // ä ö ü ß

std::string targetValue(std::string_view id)
{
    return std::string("=\"#").append(id).append("\"");
}

bool fitsCardId(char character)
{
    const char lower = lowerCase(character);
    return (lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9') || lower == '_'
        || lower == '-' || lower == '.' || kGermanLetters.find(lower) != npos;
}

} // namespace

std::string withoutDoBlock(std::string_view text)
{
    const auto begin = findIgnoringCase(text, "<!--do");
    const auto end = begin == npos ? std::nullopt : findTagFrom(text, "<!--/do", begin);
    return end ? withPiece(text, {begin, end->end}, {}) : std::string(text);
}

std::string withTargetsRenamed(
    std::string_view text, std::string_view oldId, std::string_view newId)
{
    const auto old = targetValue(oldId);
    const auto now = targetValue(newId);
    Rewriter result(text);
    for (auto at = text.find(old); at != npos; at = text.find(old, at + old.size())) {
        result.drop(at, at + old.size());
        result.append(now);
    }
    auto renamed = result.take();
    requireAddressable(renamed);
    return renamed;
}

bool leadsTo(std::string_view text, std::string_view id)
{
    return text.find(targetValue(id)) != npos;
}

CardIdFault cardIdFault(std::string_view id)
{
    if (id.empty()) return CardIdFault::Empty;
    return std::ranges::all_of(id, fitsCardId) ? CardIdFault::None : CardIdFault::BadCharacter;
}

} // namespace quillmere
