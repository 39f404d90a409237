// Searches look for places where a key's first and last character stand at their distance, many
// at a time, and compare the key there. Held by operations_test.cpp.

#include "document/text/text_search.h"

#include "document/text/byte_words.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>

namespace quillmere {
namespace {

constexpr std::size_t kBlock = 64;

bool isLetter(char character)
{
    const auto code = static_cast<unsigned char>(character);
    return (code >= 'a' && code <= 'z') || code > 127;
}

// One character of a key, compared without regard to case and without a branch.
struct AnyCase {
    unsigned char mask;
    unsigned char wanted;

    explicit AnyCase(char keyCharacter)
        : mask(isLetter(keyCharacter) ? 0x20 : 0)
        , wanted(static_cast<unsigned char>(keyCharacter))
    {
        if (wanted > 127) mask = wanted = 0xFF; // matches all, the rest is left to standsAt
    }
    // 1 or 0, since the loop below must not branch.
    [[nodiscard]] unsigned char matches(char character) const
    {
        return static_cast<unsigned char>((static_cast<unsigned char>(character) | mask) == wanted);
    }
};

// Looks at the first and last character of a key for 64 places at a time, in a loop that the
// compiler turns into a few instructions of the processor's vector unit.
class EndsOfKey {
public:
    explicit EndsOfKey(std::string_view key)
        : first_(key.front())
        , last_(key.back())
    {
    }

    /// The first place of the block that `text` begins with, of those from `from` on.
    [[nodiscard]] std::size_t findInBlock(
        std::string_view text, std::string_view key, std::size_t from = 0) const
    {
        std::array<char, kBlock> candidates;
        unsigned char any = 0;
        const char* const firsts = text.data();
        const char* const lasts = firsts + key.size() - 1;
        for (std::size_t i = 0; i < kBlock; ++i) {
            const auto both = first_.matches(firsts[i]) & last_.matches(lasts[i]);
            candidates[i] = static_cast<char>(both);
            any = static_cast<unsigned char>(any | both);
        }
        if (any == 0) return npos;
        const std::string_view marks(candidates.data(), kBlock);
        auto at = marks.find('\1', from);
        while (at != npos && !standsAt(text, at, key))
            at = marks.find('\1', at + 1);
        return at;
    }

private:
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
        if (isTag) at = findByte(text, '<', at);
        if (standsAt(text, at, key)) return at;
        if (at == npos) break;
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
        const auto found = ends.findInBlock(text.substr(from), key);
        if (found != npos) return from + found;
    }
    if (from == places) return npos;
    const auto lastBlock = places - kBlock; // partly read already
    const auto found = ends.findInBlock(text.substr(lastBlock), key, from - lastBlock);
    return found == npos ? npos : lastBlock + found;
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
