#pragma once

#include "document/text/byte_words.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillmere {

/// A tag's place in its text: offsets of the '<' and behind the '>'.
struct Tag {
    std::size_t begin = 0;
    std::size_t end = 0;
    bool hidesAnother = false; ///< whether a second '<' stands within
    [[nodiscard]] std::string_view in(std::string_view text) const
    {
        return text.substr(begin, end - begin);
    }
};

/// Walks the tags of a text from left to right. A tag ends at the first '>' behind its '<', quoted
/// or not; a '>' outside of a tag is text. The text must outlive the scanner. All is inline, since
/// it is asked for every tag of every text.
class TagScanner {
public:
    explicit TagScanner(std::string_view text)
        : text_(text)
    {
    }
    /// The next tag; nullopt where no complete tag is left.
    [[nodiscard]] std::optional<Tag> next()
    {
        const bool isHidden = hidden_ != kNowhere && hidden_ >= position_;
        const auto begin = isHidden ? hidden_ : findByte(text_, '<', position_);
        if (begin == kNowhere) return std::nullopt;
        const auto behind = findBracket(text_, begin + 1);
        const bool hidesAnother = behind != kNowhere && text_[behind] == '<';
        if (!hidesAnother)
            end_ = behind;
        else if (end_ <= begin) // else it is known from the tag that hid this one
            end_ = findByte(text_, '>', behind);
        if (end_ == kNowhere) return std::nullopt;
        hidden_ = hidesAnother ? behind : kNowhere;
        position_ = end_ + 1;
        return Tag{begin, position_, hidesAnother};
    }
    /// The next search begins at `offset`, which lies behind the last tag's begin and not behind
    /// the first '<' in it.
    void resumeAt(std::size_t offset) { position_ = offset; }

private:
    static constexpr auto kNowhere = std::string_view::npos;
    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t hidden_ = kNowhere; // the second '<' of the last tag
    std::size_t end_ = 0; // the '>' of the last tag
};

} // namespace quillmere
