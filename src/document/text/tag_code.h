#pragma once

#include "document/text/byte_words.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

// How tags begin, in numbers that can be compared at no cost. A key with a name of up to seven
// characters is told by them alone; for a longer one the text has to be read.

namespace quillmere {

/// Without regard to case: the first seven characters from the name on, which may reach into what
/// follows it ("<tr><td" counts "tr><td"), and in the last byte whether the tag is a comment marker
/// ("<!--") and whether it is an end ('/'). Characters beyond ASCII and missing ones count as 0.
using TagCode = std::uint64_t;

/// As much of a tag as its code can depend on: "<!--/option-".
inline constexpr std::size_t kTagCodeReach = 12;

namespace tag_code {

inline constexpr std::string_view kComment = "<!--";
inline constexpr std::size_t kLetters = 7;
inline constexpr unsigned char kEndBit = 1;
inline constexpr unsigned char kCommentBit = 2;

/// The letters stand from the lowest byte on, the marks in the highest.
constexpr unsigned char byteAt(TagCode code, std::size_t index)
{
    return static_cast<unsigned char>(code >> 8 * index);
}

constexpr TagCode marksIn(unsigned char marks)
{
    return TagCode{marks} << 8 * kLetters;
}

/// All bits of the first `count` letters, and of the marks behind them if wanted.
constexpr TagCode maskOf(std::size_t count, unsigned char marks)
{
    return (count == 0 ? 0 : ~TagCode{} >> 8 * (sizeof(TagCode) - count)) | marksIn(marks);
}

inline constexpr TagCode kAllLetters = maskOf(kLetters, 0);

/// Of eight characters at once: capitals become small, those beyond ASCII become 0.
constexpr TagCode folded(TagCode characters)
{
    const auto beyond = ((characters & kHighBits) >> 7U) * 0xFF;
    return smallAscii(characters & ~kHighBits) & ~beyond;
}

/// Where the name begins in a key.
constexpr std::size_t nameBegin(std::string_view key)
{
    const std::size_t behindOpening = key.starts_with(kComment) ? kComment.size() : 1;
    return behindOpening + (key.substr(behindOpening).starts_with('/') ? 1 : 0);
}

} // namespace tag_code

/// The code of the tag that `text` begins with.
[[nodiscard]] constexpr TagCode tagCode(std::string_view text)
{
    using namespace tag_code;
    constexpr TagCode kDashes = wordOf(kComment.data() + 1, kComment.size() - 1);
    auto name = wordAt(text, 1);
    const bool isComment = (name & maskOf(kComment.size() - 1, 0)) == kDashes;
    if (isComment) name = wordAt(text, kComment.size());
    const bool isEnd = byteAt(name, 0) == '/';
    const unsigned end = isEnd ? kEndBit : 0; // a number: half of the tags are ends, in no order
    return folded(name >> 8 * end & kAllLetters)
        | marksIn(static_cast<unsigned char>((isComment ? kCommentBit : 0) | end));
}

/// What the codes of all tags have in common that begin with a key.
struct TagPattern {
    constexpr TagPattern() = default; // each tag fits
    /// `key` is lower case and begins with '<'.
    constexpr explicit TagPattern(std::string_view key)
    {
        using namespace tag_code;
        if (kComment.starts_with(key)) return; // "<!" may begin "<!--" as well as "<!x"
        const auto letters = key.substr(nameBegin(key));
        mask = maskOf(std::min(letters.size(), kLetters), 0xFF);
        wanted = tagCode(key) & mask;
        const bool isAscii = std::ranges::all_of(
            letters, [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
        isWhole = !letters.empty() && letters.size() <= kLetters && isAscii;
    }
    [[nodiscard]] constexpr bool fits(TagCode code) const { return (code & mask) == wanted; }
    [[nodiscard]] constexpr bool operator==(const TagPattern&) const = default;

    TagCode mask = 0;
    TagCode wanted = 0;
    bool isWhole = false; ///< what fits is a tag with the key, and nothing else is
};

/// A text to look for, with its pattern where it is the begin of a tag. It is lower case, not
/// empty, and lies elsewhere. A constant of this type has its pattern from the compiler.
struct SearchKey {
    // Implicit, since a key is a text.
    constexpr SearchKey(std::string_view key) // NOLINT(google-explicit-constructor)
        : text(key)
        , isTag(key.front() == '<')
    {
        if (isTag) pattern = TagPattern(key);
    }
    constexpr SearchKey(const char* key) // NOLINT(google-explicit-constructor)
        : SearchKey(std::string_view(key))
    {
    }
    [[nodiscard]] constexpr bool operator==(const SearchKey& other) const
    {
        const bool isSamePlace = text.data() == other.text.data(); // mostly, for a key of its own
        return pattern == other.pattern && text.size() == other.text.size()
            && (isSamePlace || text == other.text);
    }

    std::string_view text;
    TagPattern pattern;
    bool isTag;
};

} // namespace quillmere
