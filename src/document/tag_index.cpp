// The tags lie in two stacks that meet where the last change was, so that neighbouring changes move
// few of them, and those behind a change need no new place. Held by tag_index_test.cpp and, under
// changes, by edited_text_test.cpp.

#include "document/tag_index.h"

#include <algorithm>

namespace quillmere {
namespace {

constexpr std::string_view kComment = "<!--";
constexpr TagCode kCommentBit = 0x8000;
constexpr TagCode kEndBit = 0x4000;
constexpr unsigned kLetterBits = 7;
constexpr TagCode kSecondLetter = (1U << kLetterBits) - 1;
constexpr TagCode kFirstLetter = kSecondLetter << kLetterBits;

/// Where the name of a tag begins and what its marks in front of that are.
struct TagMarks {
    std::size_t nameAt = 1;
    TagCode bits = 0;

    explicit TagMarks(std::string_view tag)
    {
        if (tag.starts_with(kComment)) {
            nameAt = kComment.size();
            bits = kCommentBit;
        }
        if (tag.substr(std::min(nameAt, tag.size())).starts_with('/')) {
            ++nameAt;
            bits |= kEndBit;
        }
    }
};

/// The same for both cases of a letter; of letters beyond ASCII nothing is told.
unsigned letterBits(std::string_view tag, std::size_t at)
{
    const unsigned letter = at < tag.size() ? static_cast<unsigned char>(tag[at]) : 0U;
    return letter > kSecondLetter ? 0U : letter | 0x20U;
}

} // namespace

TagCode tagCode(std::string_view begin)
{
    const TagMarks marks(begin);
    const auto letters
        = letterBits(begin, marks.nameAt) << kLetterBits | letterBits(begin, marks.nameAt + 1);
    return static_cast<TagCode>(marks.bits | letters);
}

TagPattern::TagPattern(std::string_view key)
{
    if (kComment.starts_with(key)) return; // "<!" may be the begin of "<!--" or of "<!x"
    const auto nameAt = TagMarks(key).nameAt;
    mask = kCommentBit | kEndBit;
    if (nameAt < key.size()) mask |= kFirstLetter;
    if (nameAt + 1 < key.size()) mask |= kSecondLetter;
    wanted = tagCode(key) & mask;
}

void TagIndex::read(std::string_view text)
{
    size_ = text.size();
    ahead_.clear();
    behind_.clear();
    for (auto at = text.find('<'); at != text.npos; at = text.find('<', at + 1))
        ahead_.push_back({static_cast<std::uint32_t>(at), tagCode(text.substr(at, kTagCodeReach))});
}

std::size_t TagIndex::find(TagPattern pattern, std::size_t begin, std::size_t end) const
{
    const auto isAhead = [](const Tag& tag, std::size_t place) { return tag.place < place; };
    for (auto tag = std::lower_bound(ahead_.begin(), ahead_.end(), begin, isAhead);
         tag != ahead_.end(); ++tag) {
        if (tag->place >= end) return std::string_view::npos;
        if (pattern.fits(tag->code)) return tag->place;
    }
    const auto isBehind
        = [this](std::size_t place, const Tag& tag) { return size_ - tag.place < place; };
    auto tag = std::upper_bound(behind_.begin(), behind_.end(), begin, isBehind);
    while (tag != behind_.begin()) {
        --tag;
        const auto place = size_ - tag->place;
        if (place >= end) break;
        if (pattern.fits(tag->code)) return place;
    }
    return std::string_view::npos;
}

void TagIndex::cut(std::size_t begin, std::size_t end)
{
    moveTo(begin);
    while (!behind_.empty() && size_ - behind_.back().place < end)
        behind_.pop_back();
    size_ -= end - begin;
}

void TagIndex::moveTo(std::size_t offset)
{
    const auto fromOtherSide = [this](const Tag& tag) {
        return Tag{static_cast<std::uint32_t>(size_ - tag.place), tag.code};
    };
    for (; !ahead_.empty() && ahead_.back().place >= offset; ahead_.pop_back())
        behind_.push_back(fromOtherSide(ahead_.back()));
    for (; !behind_.empty() && size_ - behind_.back().place < offset; behind_.pop_back())
        ahead_.push_back(fromOtherSide(behind_.back()));
}

} // namespace quillmere
