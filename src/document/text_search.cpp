// Searches look for a key's first character in both cases with the library's fast byte search,
// which for the keys of markup is always '<'. Held by text_search_test.cpp.

#include "document/text_search.h"

#include "document/windows1252.h"

#include <algorithm>

namespace quillmere {

namespace {

/// Whether one may be the capital of the other: the cases of a letter differ in these bits only.
bool mayDifferInCase(char left, char right)
{
    constexpr int kCaseBits = 0x70;
    return ((left ^ right) & ~kCaseBits) == 0;
}

} // namespace

bool standsAt(std::string_view text, std::size_t offset, std::string_view key)
{
    if (offset > text.size() || text.size() - offset < key.size()) return false;
    for (std::size_t i = 0; i < key.size(); ++i) {
        const char character = text[offset + i];
        if (character == key[i]) continue;
        if (!mayDifferInCase(character, key[i]) || lowerCase(character) != key[i]) return false;
    }
    return true;
}

std::size_t findIgnoringCase(std::string_view text, std::string_view key, std::size_t from)
{
    if (key.empty()) return from <= text.size() ? from : npos;
    const char lower = key.front();
    if (lower == '<' || lower == '>') {
        for (auto at = text.find(lower, from); at != npos; at = text.find(lower, at + 1)) {
            if (standsAt(text, at, key)) return at;
        }
        return npos;
    }
    for (auto at = from; at < text.size(); ++at) {
        if (standsAt(text, at, key)) return at;
    }
    return npos;
}

std::size_t findLastIgnoringCase(std::string_view text, std::string_view key, std::size_t before)
{
    const bool isTag = key.starts_with('<');
    for (auto at = std::min(before, text.size()); at-- > 0;) {
        if (isTag) at = text.rfind('<', at);
        if (at == npos) break;
        if (standsAt(text, at, key)) return at;
    }
    return npos;
}

ForwardFinder::ForwardFinder(std::string_view text, std::string_view key)
    : text_(text)
    , key_(key)
{
}

std::size_t ForwardFinder::next(std::size_t from)
{
    const bool known = from >= askedFrom_ && (answer_ == npos || from <= answer_);
    if (!known) {
        answer_ = findIgnoringCase(text_, key_, from);
        askedFrom_ = from;
    }
    return answer_;
}

Rewriter::Rewriter(std::string_view source)
    : source_(source)
{
    result_.reserve(source.size() + source.size() / 8);
}

void Rewriter::keepTo(std::size_t offset)
{
    if (offset <= copied_) return;
    result_.append(source_, copied_, offset - copied_);
    copied_ = std::min(offset, source_.size());
}

void Rewriter::drop(std::size_t begin, std::size_t end)
{
    keepTo(begin);
    copied_ = std::max(copied_, std::min(end, source_.size()));
}

void Rewriter::insert(std::size_t offset, std::string_view text)
{
    keepTo(offset);
    result_.append(text);
}

std::string Rewriter::take()
{
    keepTo(source_.size());
    return std::move(result_);
}

} // namespace quillmere
