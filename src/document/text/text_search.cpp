// Searches look for places where a key's first and last character stand at their distance, many
// at a time, and compare the key there. Held by operations_test.cpp.

#include "document/text/text_search.h"

#include "document/text/character_walk.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <bit>

namespace quillmere {
namespace {

constexpr std::size_t kBlock = sizeof(CharacterBlock);

bool isLetter(char character)
{
    const auto code = static_cast<unsigned char>(character);
    return (code >= 'a' && code <= 'z') || code > 127;
}

/// Where one character of a key may stand in a block, in any case.
class AnyCase {
public:
    explicit AnyCase(char keyCharacter)
        : small_(keyCharacter)
        , isLetter_(isLetter(keyCharacter))
    {
    }
    [[nodiscard]] std::uint64_t marksIn(const char* block) const
    {
        constexpr int kSmall = 0x20;
        constexpr auto kAll = ~std::uint64_t{};
        if (static_cast<unsigned char>(small_) > 127) return kAll; // the rest is left to standsAt
        const auto marks = character_marks::of(block, small_);
        if (!isLetter_) return marks;
        return marks | character_marks::of(block, static_cast<char>(small_ ^ kSmall));
    }

private:
    char small_;
    bool isLetter_;
};

/// Looks at the first and last character of a key for 64 places at a time.
class EndsOfKey {
public:
    explicit EndsOfKey(std::string_view key)
        : key_(key)
        , first_(key.front())
        , last_(key.back())
    {
    }

    /// The first place of the block that `text` begins with, of those from `from` on.
    [[nodiscard]] std::size_t findInBlock(std::string_view text, std::size_t from = 0) const
    {
        auto marks = first_.marksIn(text.data());
        if (marks != 0) marks &= last_.marksIn(text.data() + key_.size() - 1);
        for (marks = marks >> from << from; marks != 0; marks &= marks - 1) {
            const auto at = static_cast<std::size_t>(std::countr_zero(marks));
            if (standsAt(text, at, key_)) return at;
        }
        return npos;
    }

private:
    std::string_view key_;
    AnyCase first_;
    AnyCase last_;
};

} // namespace

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

namespace {

std::size_t findPlaceByPlace(std::string_view text, std::string_view key, std::size_t from)
{
    const bool isTag = key.starts_with('<');
    for (auto at = from; at < text.size(); ++at) {
        if (isTag) at = text.find('<', at);
        if (standsAt(text, at, key)) return at;
        if (at == npos) break;
    }
    return npos;
}

std::size_t findLastPlaceByPlace(std::string_view text, std::string_view key, std::size_t before)
{
    for (auto at = std::min(before, text.size()); at-- > 0;) {
        if (standsAt(text, at, key)) return at;
    }
    return npos;
}

} // namespace

std::size_t findIgnoringCase(std::string_view text, std::string_view key, std::size_t from)
{
    if (key.empty()) return from <= text.size() ? from : npos;
    if (key.size() == 1 && !isLetter(key.front())) return text.find(key.front(), from);
    const auto places = text.size() - std::min(text.size(), key.size() - 1);
    if (places < kBlock || from >= places) return findPlaceByPlace(text, key, from);
    const EndsOfKey ends(key);
    for (; from + kBlock <= places; from += kBlock) {
        const auto found = ends.findInBlock(text.substr(from));
        if (found != npos) return from + found;
    }
    if (from == places) return npos;
    const auto lastBlock = places - kBlock; // partly read already
    const auto found = ends.findInBlock(text.substr(lastBlock), from - lastBlock);
    return found == npos ? npos : lastBlock + found;
}

std::size_t findLastIgnoringCase(std::string_view text, std::string_view key, std::size_t before)
{
    if (key.empty() || isLetter(key.front())) return findLastPlaceByPlace(text, key, before);
    for (auto end = std::min(before, text.size()); end > 0;) {
        const auto begin = end - std::min(end, kBlock);
        auto marks = character_marks::in(text.substr(begin, end - begin), key.front());
        for (; marks != 0; marks = std::bit_floor(marks) ^ marks) { // without its highest bit
            const auto at = begin + static_cast<std::size_t>(std::bit_width(marks)) - 1;
            if (standsAt(text, at, key)) return at;
        }
        end = begin;
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

void Rewriter::grow(std::size_t atLeast)
{
    const auto usual = std::max(source_.size() + source_.size() / 4, 2 * length_);
    result_.resize(std::max(usual, length_ + atLeast));
}

std::string Rewriter::take()
{
    keepTo(source_.size());
    result_.resize(length_);
    return std::move(result_);
}

} // namespace quillmere
