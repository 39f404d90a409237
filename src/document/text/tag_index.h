#pragma once

#include "document/text/tag_code.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// An index of the tags of a text under changes. How each tag begins is read once; where a tag may
// stand is then told by comparing small numbers instead of reading the text again for each key.

namespace quillmere {

/// Tags by their distance from one end of the text, in rising order.
class TagStack {
public:
    struct Tag {
        TagCode code;
        std::uint32_t distance;
    };

    void clear(std::size_t expected);
    void push(const Tag& tag) { tags_.push_back(tag); }
    void pop() { tags_.pop_back(); }
    /// Takes all but the `kept` closest tags of the stack of the other end of a text.
    void takeFrom(TagStack& other, std::size_t kept, std::size_t textSize);
    [[nodiscard]] bool empty() const { return tags_.empty(); }
    [[nodiscard]] std::size_t size() const { return tags_.size(); }
    [[nodiscard]] Tag& operator[](std::size_t index) { return tags_[index]; }
    [[nodiscard]] const Tag& operator[](std::size_t index) const { return tags_[index]; }
    [[nodiscard]] const Tag& back() const { return tags_.back(); }
    /// How many tags are closer than `distance`.
    [[nodiscard]] std::size_t countCloser(std::size_t distance) const;

private:
    std::vector<Tag> tags_;
};

/// The places and codes of all '<' of a text. The text itself lies elsewhere; each change of it is
/// told here and costs the number of tags between it and the change before it.
class TagIndex {
public:
    /// Forgets all and reads `text`.
    void read(std::string_view text);

    [[nodiscard]] std::size_t count() const { return ahead_.size() + behind_.size(); }
    /// Calls `visit` with the code of each tag, in the order of the text.
    template <typename Visit> void forEachCode(Visit visit) const
    {
        for (std::size_t i = 0; i < ahead_.size(); ++i)
            visit(ahead_[i].code);
        for (auto i = behind_.size(); i-- > 0;)
            visit(behind_[i].code);
    }
    /// The first tag that fits, of those at `begin` and ahead of `end`; npos where there is none.
    [[nodiscard]] std::size_t find(TagPattern pattern, std::size_t begin, std::size_t end) const;
    /// The last one.
    [[nodiscard]] std::size_t findLast(
        TagPattern pattern, std::size_t begin, std::size_t end) const;

    /// Follows a change that has been made: `piece` stands where the text reached from `begin` to
    /// `end`. `codeAt` tells the code of the tag at an offset of the text as it is now.
    template <typename CodeAt>
    void replace(std::size_t begin, std::size_t end, std::string_view piece, CodeAt codeAt)
    {
        cut(begin, end);
        size_ += piece.size();
        for (auto i = ahead_.size(); i-- > 0 && ahead_[i].distance + kTagCodeReach > begin;)
            ahead_[i].code = codeAt(ahead_[i].distance);
        for (auto at = piece.find('<'); at != std::string_view::npos; at = piece.find('<', at + 1))
            append(begin + at, codeAt(begin + at));
    }

private:
    void append(std::size_t place, TagCode code)
    {
        ahead_.push({code, static_cast<std::uint32_t>(place)});
    }
    [[nodiscard]] std::size_t distanceFromEnd(std::size_t place) const
    {
        return place < size_ ? size_ - place : 0;
    }
    void cut(std::size_t begin, std::size_t end);
    void moveTo(std::size_t offset);

    std::size_t size_ = 0; // of the text
    TagStack ahead_; // of the last change, by the distance of their '<' from the begin of the text
    TagStack behind_; // it, by the distance of their '<' from the end of the text
};

} // namespace quillmere
