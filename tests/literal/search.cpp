#include "literal/search.h"

#include <algorithm>

namespace quillmere::literal {
namespace {

char lower(char character)
{
    const auto code = static_cast<unsigned char>(character);
    if ((code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7))
        return static_cast<char>(code + 32);
    if (code == 0x8A || code == 0x8C || code == 0x8E) return static_cast<char>(code + 16);
    return code == 0x9F ? '\xFF' : character;
}

} // namespace

std::string lowerCase(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

std::size_t find(std::string_view text, std::string_view key, std::size_t from)
{
    for (; from < text.size() && from + key.size() <= text.size(); ++from) {
        if (std::equal(key.begin(), key.end(), text.begin() + static_cast<std::ptrdiff_t>(from),
                [](char a, char b) { return lower(a) == lower(b); }))
            return from;
    }
    return npos;
}

std::size_t findLast(std::string_view text, std::string_view key, std::size_t before)
{
    std::size_t last = npos;
    for (std::size_t at = find(text, key); at < before; at = find(text, key, at + 1))
        last = at;
    return last;
}

std::size_t deleteThrough(std::string& text, std::size_t begin, std::size_t at)
{
    const std::size_t end = text.find('>', at);
    if (end == npos) return 0;
    text.erase(begin, end + 1 - begin);
    return end + 1 - begin;
}

std::size_t deleteTag(std::string& text, std::size_t at)
{
    return deleteThrough(text, at, at);
}

void deleteEvery(std::string& text, std::string_view key, std::size_t from)
{
    while (deleteTag(text, find(text, key, from)) != 0) { }
}

std::string trim(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace quillmere::literal
