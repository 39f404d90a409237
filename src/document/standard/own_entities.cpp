// What an entity stands for is never put in its place, so that entities of entities cannot grow a
// text. Held by standard_road_test.cpp.

#include "document/standard/own_entities.h"

#include "document/standard/shown_text.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = WmlToken::Kind;

constexpr std::size_t kMaxMeaning = 60;
constexpr std::string_view kMarkup[] = {"&amp;", "&lt;", "&gt;"};

void appendPart(std::vector<WmlToken>& tokens, WmlToken part, std::string_view source)
{
    part.source = source;
    if (!source.empty()) tokens.push_back(part);
}

void appendParts(
    std::vector<WmlToken>& tokens, const WmlToken& word, const wml::DeckEntities& entities)
{
    const auto source = word.source;
    std::size_t appended = 0;
    for (auto at = source.find('&'); at != std::string_view::npos; at = source.find('&', at + 1)) {
        const auto name = wml::entityAtBegin(source.substr(at));
        if (name.empty() || !entities.meaningOf(name)) continue;
        appendPart(tokens, word, source.substr(appended, at - appended));
        appendPart(tokens, word, source.substr(at, name.size() + std::string_view("&;").size()));
        appended = at + tokens.back().source.size();
    }
    appendPart(tokens, word, source.substr(appended));
}

/// Whether a text is one character, or the reference of one, that is no markup.
bool isCharacter(std::string_view shown)
{
    const bool isReference = shown.starts_with('&') && shown.find(';') + 1 == shown.size();
    return (shown.size() == 1 && !isSpaceByte(shown.front()))
        || (isReference && std::ranges::find(kMarkup, shown) == std::end(kMarkup));
}

} // namespace

wml::DeckEntities entitiesOf(std::span<const WmlToken> tokens)
{
    const auto doctype = std::ranges::find(tokens, Kind::Declaration, &WmlToken::kind);
    return wml::DeckEntities(doctype == tokens.end() ? std::string_view{} : doctype->source);
}

std::vector<WmlToken> withOwnEntitiesApart(
    std::vector<WmlToken> tokens, const wml::DeckEntities& entities)
{
    if (!entities.declaresAny()) return tokens;
    std::vector<WmlToken> result;
    for (const auto& token : tokens) {
        if (token.kind == Kind::Word)
            appendParts(result, token, entities);
        else
            result.push_back(token);
    }
    return result;
}

std::string designEntity(
    std::string_view reference, std::string_view meaning, const DeckBytes& deck)
{
    auto text = deck.decoded(meaning);
    if (auto shown = shownText(text); isCharacter(shown)) return shown;
    if (text.size() > kMaxMeaning) text = text.substr(0, kMaxMeaning) + "...";
    return "<!--#entity " + hiddenSource(deck.decoded(reference)) + " " + hiddenSource(text)
        + "-->";
}

} // namespace quillmere
