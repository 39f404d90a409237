// An area's card is renamed where its marker says something else than the one that it was opened
// with. Held by standard_road_test.cpp.

#include "document/standard/renamed_cards.h"

#include "document/standard/shown_text.h"
#include "document/standard/tag_changes.h"
#include "document/text/text_search.h"

#include <algorithm>
#include <vector>

namespace quillmere {

namespace {

constexpr std::string_view kMarkerEnd = "-->";

/// The card's marker, with what stands ahead of it.
std::string_view markerOf(std::string_view design)
{
    const auto begin = std::min(findIgnoringCase(design, "<!--card"), design.size());
    const auto end = design.find(kMarkerEnd, begin);
    return design.substr(0, end == npos ? design.size() : end + kMarkerEnd.size());
}

std::string idIn(std::string_view marker)
{
    for (const auto& piece : readDesignPieces(marker))
        if (piece.element == WmlElement::Card)
            for (const auto& attribute : attributesOf(piece))
                if (attribute.name == "id") return attribute.value;
    return {};
}

bool leadsSomewhere(std::string_view attribute)
{
    constexpr std::string_view kTargets[]
        = {"href", "onenterforward", "onenterbackward", "ontimer"};
    return std::ranges::find(kTargets, attribute) != std::end(kTargets);
}

} // namespace

CardRenames renamedCards(std::span<const AreaText> areas)
{
    CardRenames renames;
    for (const auto& area : areas) {
        if (area.opened == nullptr) continue;
        const auto then = markerOf(area.opened->text);
        const auto now = markerOf(area.design);
        if (then == now) continue;
        const auto before = idIn(then), after = idIn(now);
        if (!before.empty() && !after.empty() && before != after) renames[before] = after;
    }
    for (const auto& area : areas)
        if (!renames.empty()) renames.erase(idIn(markerOf(area.design)));
    return renames;
}

std::optional<std::string> renamedTag(
    const WmlToken& tag, const CardRenames& renames, const DeckOfCards& deck)
{
    std::vector<DeckAttribute> then;
    for (const auto& attribute : attributesOf(tag.source))
        then.push_back(
            {deck.bytes.decoded(attribute.name), shownValue(deck.bytes.decoded(attribute.value))});
    auto now = then;
    for (auto& attribute : now) {
        if (!leadsSomewhere(attribute.name) || !attribute.value.starts_with('#')) continue;
        const auto renamed = renames.find(attribute.value.substr(1));
        if (renamed != renames.end()) attribute.value = "#" + renamed->second;
    }
    if (now == then) return std::nullopt;
    return changedTag(tag.source, tag.element, then, now, deck.bytes, deck.manner);
}

} // namespace quillmere
