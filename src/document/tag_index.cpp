// The tags lie in two stacks that meet where the last change was, so that neighbouring changes move
// few of them, and those behind a change need no new place. Held by tag_index_test.cpp and, under
// changes, by edited_text_test.cpp.

#include "document/tag_index.h"

#include <algorithm>

namespace quillmere {
void TagIndex::read(std::string_view text)
{
    size_ = text.size();
    ahead_.clear();
    behind_.clear();
    codes_.reset();
    shortCodes_.reset();
    for (auto at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1))
        append(at, tagCode(text.substr(at, kTagCodeReach)));
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
