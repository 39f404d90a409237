#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillmere {

/// A tag's place in its text: offsets of the '<' and behind the '>'.
struct Tag {
    std::size_t begin = 0;
    std::size_t end = 0;
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
        constexpr auto kNowhere = std::string_view::npos;
        const auto begin = text_.find('<', position_);
        if (begin == kNowhere) return std::nullopt;
        // Behind "<" any '>' ends the tag, and all stray '>' ahead of it are passed over.
        if (nextEnd_ != kNowhere && nextEnd_ <= begin) nextEnd_ = text_.find('>', begin + 1);
        if (nextEnd_ == kNowhere) return std::nullopt;
        position_ = nextEnd_ + 1;
        return Tag{begin, nextEnd_ + 1};
    }
    /// The next search begins at `offset`, which does not lie ahead of the last tag's begin.
    void resumeAt(std::size_t offset) { position_ = offset; }

private:
    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t nextEnd_ = 0; // the first '>' at or behind position_ once it was looked for
};

} // namespace quillmere
