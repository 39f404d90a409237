// Held by standard_road_test.cpp.

#include "document/standard/deck_manner.h"

#include <utility>

namespace quillmere {

namespace {

constexpr int kEnoughQuotes = 30;

} // namespace

DeckManner mannerOf(std::span<const WmlToken> tokens, const wml::DeckEntities& entities)
{
    DeckManner manner;
    manner.knowsHardBlank = entities.knows("nbsp");
    int doubles = 0;
    int singles = 0;
    bool hasEmptyTag = false;
    for (const auto& token : tokens) {
        const bool isEmptyTag = token.kind == WmlToken::Kind::EmptyTag;
        if (isEmptyTag && !std::exchange(hasEmptyTag, true))
            manner.hasBlankAheadOfSlash = token.source.ends_with(" />");
        if (!isEmptyTag && token.kind != WmlToken::Kind::StartTag) continue;
        if (doubles + singles >= kEnoughQuotes && hasEmptyTag) break;
        for (const auto& attribute : attributesOf(token.source))
            attribute.quote == '\'' ? ++singles : ++doubles;
    }
    if (singles > doubles) manner.quote = '\'';
    return manner;
}

} // namespace quillmere
