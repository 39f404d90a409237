// Held by standard_road_test.cpp.

#include "document/standard/tag_changes.h"

#include "document/standard/shown_text.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace quillmere {

namespace {

using Attributes = std::span<const DeckAttribute>;

/// Attributes by their names; of two with one name the first.
class NamedAttributes {
public:
    explicit NamedAttributes(Attributes attributes)
    {
        for (const auto& attribute : attributes)
            byName_.emplace(attribute.name, &attribute);
    }
    /// Null for one that there is not.
    [[nodiscard]] const DeckAttribute* find(std::string_view name) const
    {
        const auto found = byName_.find(name);
        return found == byName_.end() ? nullptr : found->second;
    }

private:
    std::unordered_map<std::string_view, const DeckAttribute*> byName_;
};

bool isWritten(WmlElement element, const DeckAttribute& attribute)
{
    const bool isCardWord
        = element == WmlElement::Card && (attribute.name == "id" || attribute.name == "title");
    return !isForSurfaceOnly(element, attribute) && !(isCardWord && attribute.value.empty());
}

std::string_view withoutSpaceBehind(std::string_view text)
{
    while (!text.empty() && isSpaceByte(text.back()))
        text.remove_suffix(1);
    return text;
}

/// With the '<' ahead of the name, behind which the first attribute of a bare tag stands.
std::size_t nameLength(std::string_view tag)
{
    const auto attributes = attributesOf(tag);
    if (!attributes.empty())
        tag = tag.substr(0, static_cast<std::size_t>(attributes[0].source.data() - tag.data()));
    else
        tag.remove_suffix(tag.ends_with("/>") ? 2 : 1);
    return withoutSpaceBehind(tag).size();
}

class TagWriter {
public:
    TagWriter(const DeckBytes& deck, const DeckManner& manner)
        : deck_(deck)
        , manner_(manner)
    {
    }
    void appendNew(const DeckAttribute& attribute)
    {
        result_.append(" ").append(attribute.name).append("=").append(1, manner_.quote);
        appendValue(attribute, manner_.quote);
        result_.append(1, manner_.quote);
    }
    /// All but the value as it is written.
    void appendChanged(const WmlAttribute& written, const DeckAttribute& now)
    {
        if (written.quote == '\0') return appendNew(now);
        const auto* const end = written.source.data() + written.source.size();
        const auto* const valueEnd = written.value.data() + written.value.size();
        result_.append(written.source.data(), written.value.data());
        appendValue(now, written.quote);
        result_.append(valueEnd, end);
    }
    void append(std::string_view text) { result_ += text; }
    std::string take() { return std::move(result_); }

private:
    void appendValue(const DeckAttribute& attribute, char quote)
    {
        const auto value = writtenValue(attribute.value, quote, manner_.knowsHardBlank);
        result_ += deck_.encoded(value);
    }

    const DeckBytes& deck_;
    const DeckManner& manner_;
    std::string result_;
};

} // namespace

std::string changedTag(std::string_view source, WmlElement element, Attributes then, Attributes now,
    const DeckBytes& deck, const DeckManner& manner)
{
    TagWriter result(deck, manner);
    const NamedAttributes before(then);
    const NamedAttributes after(now);
    std::set<std::string> written;
    const auto* copied = source.data() + nameLength(source);
    result.append({source.data(), copied});
    for (const auto& attribute : attributesOf(source)) {
        const auto name = deck.decoded(attribute.name);
        written.insert(name);
        const auto* const wanted = after.find(name);
        const auto* const shown = before.find(name);
        const auto* const end = attribute.source.data() + attribute.source.size();
        const std::string_view ahead(copied, attribute.source.data());
        if (wanted == nullptr) {
            result.append(withoutSpaceBehind(ahead));
        } else {
            result.append(ahead);
            if (shown != nullptr && *wanted == *shown)
                result.append(attribute.source);
            else
                result.appendChanged(attribute, *wanted);
        }
        copied = end;
    }
    for (const auto& attribute : now) {
        const auto* const shown = before.find(attribute.name);
        const bool isSame = shown != nullptr && *shown == attribute;
        if (isSame || written.contains(attribute.name) || !isWritten(element, attribute)) continue;
        result.appendNew(attribute);
    }
    result.append(std::string_view(copied, source.data() + source.size()));
    return result.take();
}

std::string newTag(std::string_view name, WmlElement element, Attributes attributes,
    bool isEmptyTag, const DeckBytes& deck, const DeckManner& manner)
{
    TagWriter result(deck, manner);
    result.append("<");
    result.append(name);
    for (const auto& attribute : attributes) {
        if (!isWritten(element, attribute)) continue;
        result.appendNew(attribute);
    }
    if (isEmptyTag) result.append(manner.hasBlankAheadOfSlash ? " /" : "/");
    result.append(">");
    return result.take();
}

std::string openedTag(std::string_view emptyTag)
{
    emptyTag.remove_suffix(std::string_view("/>").size());
    return std::string(withoutSpaceBehind(emptyTag)) + ">";
}

} // namespace quillmere
