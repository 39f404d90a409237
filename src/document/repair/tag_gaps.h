#pragma once

#include "document/text/text_search.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// The gaps between the tags of a laid out text. White space is every character with a code
// below 33.

namespace quillmere {

/// The white space at both ends of a gap. Where the gap holds nothing else, all is `lead`.
struct GapSpace {
    std::string_view lead;
    std::string_view trail;
};

/// Tells the gap ahead of one '<' after the other: what stands between it and the last '>'.
/// The text must outlive the walk.
class GapWalk {
public:
    explicit GapWalk(std::string_view text)
        : text_(text)
    {
    }

    /// Goes to the gap ahead of the '<' at `tag`, which does not go back.
    void goAheadOf(std::size_t tag);
    /// Whether a '>' stands ahead, so that there is a gap.
    [[nodiscard]] bool exists() const { return begin_ != 0; }
    [[nodiscard]] std::size_t begin() const { return begin_; }
    /// Where the leading white space ends.
    [[nodiscard]] std::size_t leadEnd() const { return leadEnd_; }
    /// Where the trailing white space begins that is not leading as well.
    [[nodiscard]] std::size_t trailBegin() const;
    [[nodiscard]] GapSpace space() const;

private:
    std::string_view text_;
    std::size_t tag_ = 0;
    std::size_t begin_ = 0;
    std::size_t leadEnd_ = 0;
};

/// By how many of its first characters a tag is known, its '<' being one of them.
inline constexpr std::size_t kTagKeyLength = 3;

/// Walks the tags of a text that match given keys, each one behind the one before it.
/// The text must outlive the walk.
class PristineWalk {
public:
    explicit PristineWalk(std::string_view text);
    /// Goes to the next tag that begins as `tag` does, ignoring case: with the first three
    /// characters of a tag, or "<>". Returns the white space ahead of it; nullopt where there is no
    /// such tag, which leaves the walk where it is, or no gap ahead of the tag.
    [[nodiscard]] std::optional<GapSpace> goTo(std::string_view tag);

private:
    using Key = std::uint16_t; // of the characters behind the '<'
    using Index = std::uint32_t;
    static constexpr Index kNone = 0xFFFFFFFF;
    struct Tag {
        std::uint32_t offset;
        Index nextInBucket;
        Key key;
    };

    [[nodiscard]] static Key keyOf(std::string_view tag);
    void fillBuckets();
    [[nodiscard]] Index findInBucket(Key key);

    std::vector<Tag> tags_; // in the order of the text
    Index next_ = 0; // the first one that the walk has not passed
    // Of no use as long as it is always the next one that is asked for:
    bool bucketsAreFilled_ = false;
    std::array<Index, 256> buckets_; // the first tag that the walk may not have passed
    std::bitset<0x10000> missing_; // keys of which none is left
    GapWalk gaps_;
};

} // namespace quillmere
