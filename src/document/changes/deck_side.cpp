// Held by deck_changes_test.cpp.

#include "document/changes/deck_side.h"

#include "document/changes/character_references.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillmere {

namespace {

bool isTag(const DeckItem& item)
{
    return item.kind == DeckItem::Kind::Start || item.kind == DeckItem::Kind::End;
}

constexpr std::string_view kInLine[] = {"a", "b", "big", "em", "i", "small", "strong", "u"};

bool isInLine(const DeckItem& item)
{
    if (item.kind == DeckItem::Kind::Comment) return true;
    return isTag(item)
        && std::find(std::begin(kInLine), std::end(kInLine), item.name) != std::end(kInLine);
}

} // namespace

std::string DeckSide::element(std::size_t at) const
{
    return isTag(item(at)) ? item(at).name : deck.parentName(item(at));
}

std::string DeckSide::text(std::size_t at) const
{
    return isTag(item(at)) ? std::string(deck.source(item(at))) : withReferences(item(at).name);
}

std::string DeckSide::words(const std::vector<std::size_t>& items) const
{
    std::string text;
    for (const auto at : items) {
        if (!text.empty() && !item(at).joined) text += ' ';
        text += item(at).name;
    }
    return withReferences(std::move(text));
}

std::size_t DeckSide::wordAheadInLine(std::size_t at) const
{
    while (at-- > 0) {
        if (item(at).kind == DeckItem::Kind::Word) return at;
        if (!isInLine(item(at))) return kNoItem;
    }
    return kNoItem;
}

std::vector<MarkupAttribute> DeckSide::attributes(std::size_t start) const
{
    const auto found = deck.document.attributesOf(deck.document.tokens[item(start).token]);
    std::vector<MarkupAttribute> sorted(found.begin(), found.end());
    std::stable_sort(sorted.begin(), sorted.end(),
        [](const auto& a, const auto& b) { return lowerCase(a.name) < lowerCase(b.name); });
    return sorted;
}

std::string withReferences(std::string text)
{
    std::replace(text.begin(), text.end(), kKeptReference, '&');
    return text;
}

} // namespace quillmere
