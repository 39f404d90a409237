// Entries and attributes are found by searches that ignore case, each going forward only. Held by
// word_table_test.cpp, which reads hostile texts against a time limit.

#include "app/resource_text.h"

#include "document/text/windows1252.h"

#include <algorithm>
#include <charconv>

namespace quillmere {

std::string_view resourceAttribute(std::string_view tag, std::string_view name)
{
    const auto found = findIgnoringCase(tag, name);
    if (found == npos) return {};
    const auto value = tag.substr(found + name.size());
    auto limit = value.find('=');
    if (limit == npos) limit = value.find('>');
    limit = std::min(limit, value.size());
    const auto quote = value.find('"');
    if (quote >= limit) return value.substr(0, std::min(value.find(' '), limit));
    const auto quoted = value.substr(quote + 1);
    const auto end = quoted.find('"');
    // Without its second quote the value goes on to where the search ends.
    return quoted.substr(0, end == npos ? limit - quote - 1 : end);
}

std::string fieldText(std::string_view value, std::size_t width)
{
    const auto text = trimBlanks(value.substr(0, value.find('\0')));
    return std::string(trimBlanks(text.substr(0, width)));
}

std::optional<std::int16_t> shortNumber(std::string_view text)
{
    text = trimBlanks(text);
    std::int16_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

ResourceEntries::ResourceEntries(
    std::string_view text, std::string_view beginTag, std::string_view endTag)
    : text_(text)
    , begins_(text, beginTag)
    , ends_(text, endTag)
{
}

std::optional<ResourceEntry> ResourceEntries::next()
{
    while (true) {
        const auto begin = begins_.next(position_);
        if (begin == npos) return std::nullopt;
        position_ = std::min({ends_.next(begin), begins_.next(begin + 1), text_.size()});
        const auto entry = text_.substr(begin, position_ - begin);
        const auto tagEnd = entry.find('>');
        if (tagEnd == npos) continue;
        return ResourceEntry{entry.substr(0, tagEnd + 1), entry.substr(tagEnd + 1)};
    }
}

} // namespace quillmere
