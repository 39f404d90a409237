// Reads the attributes of a tag from left to right, as browsers do. Held by surface_page_test.cpp.

#include "editor/page/attribute_values.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "editor/page/markup_tags.h"

#include <algorithm>

namespace quillmere {

namespace {

class AttributeWalk {
public:
    explicit AttributeWalk(std::string_view tag)
        : rest_(tag.substr(0, tag.ends_with('>') ? tag.size() - 1 : tag.size()))
    {
        take([](char c) { return !isWhite(c); }); // '<' and the name of the tag
    }
    /// Reads the next attribute; false at the end of the tag.
    bool next()
    {
        skipWhite();
        if (rest_.empty()) return false;
        name = take([](char c) { return !isWhite(c) && c != '='; });
        value = {};
        valueEnd_ = name.end();
        skipWhite();
        if (rest_.starts_with('=')) readValue();
        source = std::string_view(name.begin(), valueEnd_);
        return true;
    }
    std::string_view name;
    std::string_view value;
    std::string_view source; ///< the name, with the value and its quotes

private:
    template <typename Fits> std::string_view take(Fits fits)
    {
        const auto end = std::ranges::find_if_not(rest_, fits);
        const std::string_view taken(rest_.begin(), end);
        rest_.remove_prefix(taken.size());
        return taken;
    }
    void skipWhite() { take(isWhite); }
    void readValue()
    {
        rest_.remove_prefix(1);
        skipWhite();
        const char quote = rest_.empty() ? '\0' : rest_.front();
        const bool isQuoted = quote == '"' || quote == '\'';
        if (isQuoted) rest_.remove_prefix(1);
        value = isQuoted ? take([quote](char c) { return c != quote; })
                         : take([](char c) { return !isWhite(c); });
        if (isQuoted && !rest_.empty()) rest_.remove_prefix(1);
        valueEnd_ = rest_.begin();
    }
    std::string_view rest_;
    std::string_view::const_iterator valueEnd_ = nullptr;
};

} // namespace

std::optional<std::string_view> findAttribute(std::string_view tag, std::string_view name)
{
    AttributeWalk attributes(tag);
    while (attributes.next())
        if (equalIgnoringCase(attributes.name, name)) return attributes.value;
    return std::nullopt;
}

std::string otherAttributes(std::string_view tag, std::initializer_list<std::string_view> names)
{
    constexpr std::string_view kMarkerEnd = "-->";
    if (tag.starts_with("<!--") && tag.ends_with(kMarkerEnd)) tag.remove_suffix(kMarkerEnd.size());
    std::string others;
    AttributeWalk attributes(tag);
    while (attributes.next()) {
        const auto isNamed
            = [&](std::string_view name) { return equalIgnoringCase(attributes.name, name); };
        if (attributes.name != "/" && std::ranges::none_of(names, isNamed))
            others.append(" ").append(attributes.source);
    }
    return others;
}

std::string secondTag(std::string_view tag, const OutputRules& rules)
{
    if (!rules.losesNothing() || !findAttribute(tag, "id")) return std::string(tag);
    const auto name = tag.substr(0, tag.find_first_of(" \t\r\n/>", 1));
    return std::string(name) + otherAttributes(tag, {"id"}) + ">";
}

std::string_view picturePath(std::string_view source)
{
    constexpr std::string_view kScheme = "file://";
    const auto scheme = findIgnoringCase(source, kScheme);
    return scheme == npos ? source : source.substr(scheme + kScheme.size());
}

} // namespace quillmere
