#pragma once

#include "document/text/character_walk.h"

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
        : begins_(text, '<')
        , ends_(text, '>')
        , nextBegin_(begins_.next())
    {
    }
    /// The next tag; nullopt where no complete tag is left.
    [[nodiscard]] std::optional<Tag> next()
    {
        if (nextBegin_ < position_) nextBegin_ = begins_.nextFrom(position_);
        if (nextBegin_ == kNowhere) return std::nullopt;
        const auto begin = nextBegin_;
        // Behind "<" any '>' ends the tag, and all stray '>' ahead of it are passed over.
        if (nextEnd_ != kNowhere && nextEnd_ <= begin) nextEnd_ = ends_.nextFrom(begin + 1);
        if (nextEnd_ == kNowhere) return std::nullopt;
        nextBegin_ = begins_.next();
        position_ = nextEnd_ + 1;
        return Tag{begin, position_, nextBegin_ < nextEnd_};
    }
    /// The next search begins at `offset`, which lies behind the last tag's begin and not behind
    /// the first '<' in it.
    void resumeAt(std::size_t offset) { position_ = offset; }

private:
    static constexpr auto kNowhere = std::string_view::npos;
    CharacterWalk begins_;
    CharacterWalk ends_;
    std::size_t position_ = 0;
    std::size_t nextBegin_; // the first '<' behind that of the last tag
    std::size_t nextEnd_ = 0; // the first '>' behind that of the last tag's begin
};

} // namespace quillmere
