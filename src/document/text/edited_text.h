#pragma once

#include "document/text/tag_index.h"
#include "document/text/text_edits.h"
#include "document/text/text_search.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillmere {

/// A text under many searches and changes. Searches ignore case and remember what they have read,
/// so that asking for the same key from place to place reads each part of the text about once,
/// whatever is changed meanwhile. Keys that begin with '<' are looked up in an index of the tags.
/// A change costs its distance from the change before it.
/// Offsets are those of the text as it is at the moment.
class EditedText {
public:
    /// Takes the text over; `take` gives it back.
    explicit EditedText(std::string&& text);

    [[nodiscard]] std::size_t size() const { return buffer_.size() - (gapEnd_ - gapBegin_); }
    [[nodiscard]] char operator[](std::size_t offset) const
    {
        return buffer_[offset < gapBegin_ ? offset : offset + (gapEnd_ - gapBegin_)];
    }
    [[nodiscard]] std::string copy(std::size_t begin, std::size_t end) const;
    /// All of the text in one piece, which holds until the next change.
    [[nodiscard]] std::string_view whole();

    /// The first place at or behind `from` where `key` stands; npos where there is none. What
    /// `key` tells must outlive this text. `limit` is for who needs no place from there on: nothing
    /// is read for them, and where there is none ahead of it the answer is any from it on, or npos.
    [[nodiscard]] std::size_t find(
        const SearchKey& key, std::size_t from = 0, std::size_t limit = npos);
    /// The last place ahead of `before` where `key` begins, of those from `from` on. Nothing of
    /// this is remembered.
    [[nodiscard]] std::size_t findLast(
        const SearchKey& key, std::size_t before = npos, std::size_t from = 0) const;
    /// The offset behind the first '>' at or behind `begin`; npos where there is none.
    [[nodiscard]] std::size_t tagEnd(std::size_t begin);

    void cut(std::size_t begin, std::size_t end) { replace(begin, end, {}); }
    void insert(std::size_t offset, std::string_view piece) { replace(offset, offset, piece); }
    void replace(std::size_t begin, std::size_t end, std::string_view piece);
    /// Cuts from `begin` through the first '>' there. Returns the length of what was cut, 0 where
    /// there is no '>'.
    std::size_t cutTag(std::size_t begin);
    /// Cuts every tag that begins with `key` at or behind `from`, those included that come about
    /// by the cutting.
    void cutEveryTag(const SearchKey& key, std::size_t from = 0);
    /// Makes edits that were found in the text as it is, which is no longer than positions can
    /// tell. Throws Overflow, with the text unchanged, where it would get longer.
    void apply(TextEdits& edits);
    /// Hands all of the text to an operation that works in place.
    void rework(void (*operation)(std::string&));

    /// The tags of the text as it is.
    [[nodiscard]] const TagIndex& tags() const { return tags_; }
    /// How many changes were made so far: the same number, the same text.
    [[nodiscard]] std::size_t changes() const { return changes_; }

    /// Gives the text away.
    [[nodiscard]] std::string take() &&;

private:
    /// What is known of a key: it begins nowhere from `from` up to `to`, and at `to` if `found`.
    /// Behind that nothing is known.
    struct Search {
        SearchKey key = "<";
        std::size_t from = 0;
        std::size_t to = 0;
        bool found = false;
    };
    /// From `begin` to `oldEnd` another piece was put in, which now ends at `newEnd`.
    struct Change {
        std::size_t begin;
        std::size_t oldEnd;
        std::size_t newEnd;
    };

    static void keepLonger(Search& known, const Search& other);
    [[nodiscard]] Search& remembered(const SearchKey& key);
    [[nodiscard]] std::size_t findFrom(
        const SearchKey& key, std::size_t begin, std::size_t limit) const;
    [[nodiscard]] std::size_t findTag(
        const SearchKey& key, std::size_t begin, std::size_t limit) const;
    [[nodiscard]] std::size_t findLastTag(
        const SearchKey& key, std::size_t from, std::size_t before) const;
    [[nodiscard]] std::size_t findText(
        const SearchKey& key, std::size_t begin, std::size_t limit) const;
    [[nodiscard]] bool standsHere(const SearchKey& key, std::size_t offset) const;
    [[nodiscard]] TagCode tagCodeAt(std::size_t offset) const;
    void closeGap();
    void readAgain();
    void moveGap(std::size_t offset);
    void growGap(std::size_t atLeast);
    void adjust(Search& search, const Change& change) const;

    std::string buffer_; // the text with a gap in it, where the last change was
    std::size_t gapBegin_ = 0;
    std::size_t gapEnd_ = 0;
    TagIndex tags_;
    std::array<Search, 8> searches_; // more keys than that take the place of the oldest
    std::size_t searchCount_ = 0;
    std::size_t changes_ = 0;
};

} // namespace quillmere
