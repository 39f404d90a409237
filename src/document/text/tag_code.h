#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// How tags begin, in small numbers that can be compared and counted at no cost. They only tell
// where a tag may stand; whether it does is then read in the text.

namespace quillmere {

/// In 16 bits and without regard to case: whether a tag is a comment marker ("<!--"), whether it is
/// an end ('/'), and the two characters behind that. Those beyond ASCII and missing ones count as
/// 0.
using TagCode = std::uint16_t;

/// As much of a tag as its code can depend on: "<!--/op".
inline constexpr std::size_t kTagCodeReach = 7;

namespace tag_code {

inline constexpr std::string_view kComment = "<!--";
inline constexpr unsigned kCommentBit = 0x8000;
inline constexpr unsigned kEndBit = 0x4000;
inline constexpr unsigned kLetterBits = 7;
inline constexpr unsigned kSecondLetter = 0x7F;
inline constexpr unsigned kFirstLetter = kSecondLetter << kLetterBits;

/// Where the name begins in a tag, and the bits of what stands ahead of it.
struct Name {
    std::size_t at = 1;
    unsigned marks = 0;

    constexpr explicit Name(std::string_view tag)
    {
        if (tag.size() > 1 && tag[1] == kComment[1] && tag.starts_with(kComment)) {
            at = kComment.size();
            marks = kCommentBit;
        }
        if (at < tag.size() && tag[at] == '/') {
            ++at;
            marks |= kEndBit;
        }
    }
};

constexpr unsigned letterBits(std::string_view tag, std::size_t at)
{
    const unsigned letter = at < tag.size() ? static_cast<unsigned char>(tag[at]) : 0U;
    if (letter >= 'A' && letter <= 'Z') return letter - 'A' + 'a';
    return letter <= kSecondLetter ? letter : 0U;
}

} // namespace tag_code

/// The code of the tag that `begin` begins with.
[[nodiscard]] constexpr TagCode tagCode(std::string_view begin)
{
    const tag_code::Name name(begin);
    const auto first = tag_code::letterBits(begin, name.at) << tag_code::kLetterBits;
    return static_cast<TagCode>(name.marks | first | tag_code::letterBits(begin, name.at + 1));
}

/// What the codes of all tags have in common that begin with a key. With a longer key other tags
/// fit as well: "<big" fits "<bit".
struct TagPattern {
    constexpr TagPattern() = default; // each tag fits
    /// `key` is lower case and begins with '<'.
    constexpr explicit TagPattern(std::string_view key)
    {
        using namespace tag_code;
        if (kComment.starts_with(key)) return; // "<!" may begin "<!--" as well as "<!x"
        const auto nameAt = Name(key).at;
        const auto first = nameAt < key.size() ? kFirstLetter : 0U;
        const auto second = nameAt + 1 < key.size() ? kSecondLetter : 0U;
        mask = static_cast<TagCode>(kCommentBit | kEndBit | first | second);
        wanted = tagCode(key) & mask;
        isWhole = first != 0 && nameAt + 2 >= key.size();
    }
    [[nodiscard]] constexpr bool fits(TagCode code) const { return (code & mask) == wanted; }
    [[nodiscard]] constexpr bool operator==(const TagPattern&) const = default;

    TagCode mask = 0;
    TagCode wanted = 0;
    bool isWhole = false; ///< what fits is a tag with the key
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
