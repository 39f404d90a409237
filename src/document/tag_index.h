#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// An index of the tags of a text under changes. How each tag begins is read once; where a tag may
// stand is then told by comparing small numbers instead of reading the text again for each key.

namespace quillmere {

/// How a tag begins, in 16 bits and without regard to case: whether it is a comment marker
/// ("<!--"), whether it is an end ('/'), and 7 bits of each of the two characters behind that.
using TagCode = std::uint16_t;

/// As much of a tag as its code can depend on: "<!--/op".
inline constexpr std::size_t kTagCodeReach = 7;

/// The code of the tag that `begin` begins with. Characters beyond its end count as 0.
[[nodiscard]] TagCode tagCode(std::string_view begin);

/// What the codes of all tags have in common that begin with a key. Some other tags fit as well:
/// "<big" fits the key "<bi>".
struct TagPattern {
    TagPattern() = default; // each tag fits
    /// `key` is lower case and begins with '<'.
    explicit TagPattern(std::string_view key);
    [[nodiscard]] bool fits(TagCode code) const { return (code & mask) == wanted; }

    TagCode mask = 0;
    TagCode wanted = 0;
};

/// The places and codes of all '<' of a text. The text itself lies elsewhere; each change of it is
/// told here and costs the number of tags between it and the change before it.
class TagIndex {
public:
    /// Forgets all and reads `text`.
    void read(std::string_view text);

    /// The first tag that fits, of those at `begin` and ahead of `end`; npos where there is none.
    [[nodiscard]] std::size_t find(TagPattern pattern, std::size_t begin, std::size_t end) const;

    /// Follows a change that has been made: `piece` stands where the text reached from `begin` to
    /// `end`. `codeAt` tells the code of the tag at an offset of the text as it is now.
    template <typename CodeAt>
    void replace(std::size_t begin, std::size_t end, std::string_view piece, CodeAt codeAt)
    {
        cut(begin, end);
        size_ += piece.size();
        for (auto tag = ahead_.rbegin(); tag != ahead_.rend() && tag->place + kTagCodeReach > begin;
             ++tag)
            tag->code = codeAt(tag->place);
        for (auto at = piece.find('<'); at != piece.npos; at = piece.find('<', at + 1))
            ahead_.push_back({static_cast<std::uint32_t>(begin + at), codeAt(begin + at)});
    }

private:
    struct Tag {
        std::uint32_t place;
        TagCode code;
    };
    using Tags = std::vector<Tag>;

    void cut(std::size_t begin, std::size_t end);
    void moveTo(std::size_t offset);

    std::size_t size_ = 0; // of the text
    Tags ahead_; // of the last change, by their distance from the begin of the text
    Tags behind_; // it, by their distance from the end of the text, so that the last tag is first
};

} // namespace quillmere
