// Plain searches from marker to key to quotes. A key without a value in quotes counts as missing.
// Held by card_attributes_test.cpp.

#include "document/card_attributes.h"

#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <optional>

namespace quillmere {
namespace {

constexpr std::string_view kCardId = "card id=";
constexpr std::string_view kTitle = "title=";
constexpr std::string_view kAcceptDo = "do type=\"accept\"";
constexpr std::string_view kDefaultName = "Sprung";

/// The place of a value, without its quotes.
struct Value {
    std::size_t begin = 0;
    std::size_t end = 0;
    [[nodiscard]] std::string in(std::string_view text) const
    {
        return std::string(text.substr(begin, end - begin));
    }
};

/// The value of the first `key` (lower case) from `from` on, if its first quote lies ahead of
/// `limit`. Its last quote may lie behind: a value may hold a '>'.
std::optional<Value> valueOf(
    std::string_view text, std::string_view key, std::size_t from, std::size_t limit)
{
    const auto at = findIgnoringCase(text.substr(0, limit), key, from);
    if (at == npos) return std::nullopt;
    const auto open = text.find('"', at + key.size());
    if (open == npos || open >= limit) return std::nullopt;
    const auto close = text.find('"', open + 1);
    if (close == npos) return std::nullopt;
    return Value{open + 1, close};
}

struct CardMarker {
    Value id;
    std::optional<Value> title;
};

/// The title among attributes that all have their values in double quotes, as those of a deck
/// without loss do: `onenterforward="a?title=b"` is none.
std::optional<Value> titleAmong(std::string_view text, std::size_t from, std::size_t limit)
{
    for (auto name = text.find_first_not_of(' ', from); name < limit;) {
        const auto open = text.find('"', name);
        const auto close = text.find('"', std::min(open, limit) + 1);
        if (close >= limit) return std::nullopt;
        const Value value{open + 1, close};
        if (equalIgnoringCase(text.substr(name, open - name), kTitle)) return value;
        name = text.find_first_not_of(' ', close + 1);
    }
    return std::nullopt;
}

std::optional<CardMarker> cardMarkerIn(std::string_view text, const DocumentSession& session)
{
    const auto at = findIgnoringCase(text, kCardId);
    if (at == npos) return std::nullopt;
    const auto end = text.find('>', at);
    if (end == npos) return std::nullopt;
    const auto id = valueOf(text, kCardId, at, end);
    if (!id) return std::nullopt;
    return CardMarker{*id,
        losesNothing(session) ? titleAmong(text, id->end + 1, end)
                              : valueOf(text, kTitle, id->end, end)};
}

std::optional<std::string_view> lineWithCard(std::string_view text)
{
    LineReader lines(text);
    auto line = lines.next();
    while (line && findIgnoringCase(*line, kCardId) == npos)
        line = lines.next();
    return line;
}

/// The jump of an area. Without an end nothing lies inside of it.
struct AcceptDo {
    std::size_t begin = 0;
    std::size_t behindAttributes = 0;
    std::size_t end = 0;
};

/// An attribute of the jump itself.
std::optional<Value> attributeIn(std::string_view text, const AcceptDo& jump, std::string_view key)
{
    return valueOf(text, key, jump.begin, jump.behindAttributes);
}

std::optional<Value> targetIn(std::string_view text, const AcceptDo& jump)
{
    return valueOf(text, "go href=", jump.begin, jump.end);
}

/// ` key="value"`, to be put into a marker.
std::string attribute(std::string_view key, std::string_view value)
{
    return std::string(" ").append(key).append("\"").append(value).append("\"");
}

/// Single quotes are those of actions that stand whole in a marker, as the deck has them.
bool bearsName(std::string_view text, std::string_view name, bool hasSingleQuotes)
{
    const auto isThere = [&](char quote) {
        auto key = std::string("name=").append(1, quote).append(lowerCase(name)).append(1, quote);
        return findIgnoringCase(text, key) != npos;
    };
    return isThere('"') || (hasSingleQuotes && isThere('\''));
}

std::string unusedJumpName(std::string_view text, std::string_view wanted, bool hasSingleQuotes)
{
    std::string name(wanted.empty() ? kDefaultName : wanted);
    for (int i = 0; bearsName(text, name, hasSingleQuotes); ++i)
        name = std::string(kDefaultName) + std::to_string(i);
    return name;
}

/// The first do marker of type accept; npos for none. In a deck without loss other actions stand
/// whole within one marker each, "<!--#do &lt;do type="accept"&gt;...-->".
std::size_t acceptDoBegin(std::string_view text, const DocumentSession& session)
{
    auto at = findIgnoringCase(text, kAcceptDo);
    if (!losesNothing(session)) return at;
    while (at != npos && text.substr(0, at).ends_with("&lt;"))
        at = findIgnoringCase(text, kAcceptDo, at + 1);
    return at;
}

/// Its parameters, which have names as well, stand in it only in a deck without loss.
std::optional<AcceptDo> acceptDoIn(std::string_view text, const DocumentSession& session)
{
    const auto begin = acceptDoBegin(text, session);
    if (begin == npos) return std::nullopt;
    const auto end = findIgnoringCase(text, "<!--/do", begin);
    if (end == npos) return AcceptDo{begin, begin, begin};
    return AcceptDo{
        begin, losesNothing(session) ? std::min(text.find("-->", begin), end) : end, end};
}

/// Sets an attribute of the jump; a missing one is put in behind the type.
void setDoAttribute(
    std::string& text, const DocumentSession& session, std::string_view key, std::string_view value)
{
    const auto jump = *acceptDoIn(text, session);
    if (const auto old = attributeIn(text, jump, key))
        text.replace(old->begin, old->end - old->begin, value);
    else
        text.insert(jump.begin + kAcceptDo.size(), attribute(key, value).append(" "));
}

/// The end of the jump is looked for anew each time, since a value may move it.
void changeJump(std::string& text, const DocumentSession& session, const Jump& jump, bool keepsName)
{
    setDoAttribute(text, session, "label=", jump.label);
    if (!keepsName) setDoAttribute(text, session, "name=", jump.name);
    if (const auto old = targetIn(text, *acceptDoIn(text, session)))
        text.replace(old->begin, old->end - old->begin, jump.target);
}

void insertJump(std::string& text, const Jump& jump)
{
    const auto card = findIgnoringCase(text, "<!--card");
    const auto end = card == npos ? npos : text.find('>', card);
    if (end == npos) return;
    std::string block = "<!--do type=\"accept\"";
    block.append(attribute("label=", jump.label)).append(attribute("name=", jump.name));
    block.append("--><!--go").append(attribute("href=", jump.target));
    block.append("/--><!--/do-->");
    text.insert(end + 1, block);
}

} // namespace

CardAttributes GetCardAttributes(DocumentSession& session, std::size_t areaIndex)
{
    const auto& area = areaRecord(session, areaIndex);
    const auto text = session.workFiles.read(area.designDir + area.designFile);
    const auto line = lineWithCard(text);
    const auto marker = line ? cardMarkerIn(*line, session) : std::nullopt;
    if (!marker) return {};
    return {marker->id.in(*line), marker->title ? marker->title->in(*line) : std::string()};
}

void SetCardAttributes(
    DocumentSession& session, std::size_t areaIndex, std::string_view id, std::string_view title)
{
    const auto text = ReadDesignText(session, areaIndex);
    Rewriter changed(text);
    if (const auto marker = cardMarkerIn(text, session)) {
        changed.drop(marker->id.begin, marker->id.end);
        changed.insert(marker->id.end, id);
        if (marker->title) {
            changed.drop(marker->title->begin, marker->title->end);
            changed.insert(marker->title->end, title);
        } else {
            changed.insert(marker->id.end + 1, attribute("title=", title));
        }
    }
    WriteDesignText(session, areaIndex, changed.take());
}

Jump GetJump(DocumentSession& session, std::size_t areaIndex)
{
    const auto text = ReadDesignText(session, areaIndex);
    const auto jump = acceptDoIn(text, session);
    if (!jump) return {};
    const auto orEmpty = [&](const std::optional<Value>& value) {
        return value ? value->in(text) : std::string();
    };
    return {orEmpty(attributeIn(text, *jump, "name=")), orEmpty(attributeIn(text, *jump, "label=")),
        orEmpty(targetIn(text, *jump))};
}

void SetJump(DocumentSession& session, std::size_t areaIndex, const Jump& jump)
{
    auto text = ReadDesignText(session, areaIndex);
    const Jump named{
        unusedJumpName(text, jump.name, losesNothing(session)), jump.label, jump.target};
    if (acceptDoIn(text, session))
        changeJump(text, session, named, losesNothing(session) && jump.name.empty());
    else
        insertJump(text, named);
    WriteDesignText(session, areaIndex, text);
}

bool JumpNameInUse(DocumentSession& session, std::size_t areaIndex, std::string_view name)
{
    return bearsName(ReadDesignText(session, areaIndex), name, losesNothing(session));
}

} // namespace quillmere
