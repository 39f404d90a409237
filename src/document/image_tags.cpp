// The search goes on behind the '>' of each tag, so that each part of a text is read once, also
// where thousands of "<img" share one '>'. Held by images_test.cpp.

#include "document/image_tags.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"

namespace quillmere {

std::vector<std::string_view> imageTags(std::string_view text)
{
    std::vector<std::string_view> tags;
    std::size_t end = 0;
    while (true) {
        const auto begin = findIgnoringCase(text, "<img", end);
        if (begin == npos) return tags;
        end = text.find('>', begin);
        if (end == npos) return tags;
        tags.push_back(text.substr(begin, ++end - begin));
    }
}

std::optional<std::string_view> quotedAttribute(std::string_view tag, std::string_view name)
{
    const auto at = findIgnoringCase(tag, std::string(name) + '"');
    if (at == npos) return std::nullopt;
    const auto value = tag.substr(at + name.size() + 1);
    const auto end = value.find('"');
    if (end == npos) return std::nullopt;
    return value.substr(0, end);
}

std::optional<std::string_view> imageAttribute(std::string_view tag, std::string_view name)
{
    if (const auto quoted = quotedAttribute(tag, name)) return quoted;
    const auto bare = findIgnoringCase(tag, name);
    if (bare == npos) return std::nullopt;
    const auto value = tag.substr(bare + name.size());
    return value.substr(0, value.find_first_of(" >"));
}

std::optional<std::string_view> pixelsBehind(std::string_view tag, std::string_view name)
{
    const auto at = findIgnoringCase(tag, name);
    if (at == npos) return std::nullopt;
    const auto value = tag.substr(at + name.size());
    const auto end = findIgnoringCase(value, "px");
    if (end == npos) return std::nullopt;
    return value.substr(0, end);
}

std::string shownPath(std::string_view tag)
{
    constexpr std::string_view kScheme = "file://";
    const auto source = imageAttribute(tag, "src=");
    if (!source) return {};
    std::string path = lowerCase(trimBlanks(*source));
    const auto scheme = path.find(kScheme);
    if (scheme != npos) path.erase(0, scheme + kScheme.size());
    return path;
}

} // namespace quillmere
