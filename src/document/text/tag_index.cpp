// The tags lie in two stacks that meet where the last change was, so that neighbouring changes move
// few of them, and those behind a change need no new place. Held by clean_passes_test.cpp.

#include "document/text/tag_index.h"

#include "document/text/character_walk.h"

#include <algorithm>

namespace quillmere {
namespace {

constexpr std::size_t kUsualDistance = 12; // from a tag to the next one, at the least

} // namespace

void TagStack::clear(std::size_t expected)
{
    tags_.clear();
    tags_.reserve(expected);
}

std::size_t TagStack::countCloser(std::size_t distance) const
{
    if (distance == 0) return 0;
    // Halves by a number and not by a branch, which could not be foreseen.
    std::size_t count = 0;
    for (auto left = size(); left > 0; left /= 2) {
        const auto half = (left + 1) / 2;
        count += tags_[count + half - 1].distance < distance ? half : 0;
    }
    return count;
}

void TagStack::takeFrom(TagStack& other, std::size_t kept, std::size_t textSize)
{
    auto place = tags_.size();
    tags_.resize(place + other.size() - kept);
    for (auto i = other.size(); i-- > kept; ++place) {
        const auto& [code, distance] = other.tags_[i];
        tags_[place] = {code, static_cast<std::uint32_t>(textSize - distance)};
    }
    other.tags_.resize(kept);
}

void TagIndex::read(std::string_view text)
{
    size_ = text.size();
    ahead_.clear(text.size() / kUsualDistance);
    behind_.clear(0);
    CharacterWalk openings(text, '<');
    for (auto at = openings.next(); at != std::string_view::npos; at = openings.next())
        append(at, tagCode(text.substr(at)));
}

std::size_t TagIndex::find(TagPattern pattern, std::size_t begin, std::size_t end) const
{
    for (auto i = ahead_.countCloser(begin); i < ahead_.size(); ++i) {
        if (ahead_[i].distance >= end) return std::string_view::npos;
        if (pattern.fits(ahead_[i].code)) return ahead_[i].distance;
    }
    if (behind_.empty()) return std::string_view::npos;
    for (auto left = behind_.countCloser(distanceFromEnd(begin) + 1); left-- > 0;) {
        const auto place = size_ - behind_[left].distance;
        if (place >= end) break;
        if (pattern.fits(behind_[left].code)) return place;
    }
    return std::string_view::npos;
}

std::size_t TagIndex::findLast(TagPattern pattern, std::size_t begin, std::size_t end) const
{
    for (auto i = behind_.countCloser(distanceFromEnd(end) + 1); i < behind_.size(); ++i) {
        const auto place = size_ - behind_[i].distance;
        if (place < begin) return std::string_view::npos;
        if (pattern.fits(behind_[i].code)) return place;
    }
    for (auto i = ahead_.countCloser(end); i-- > 0;) {
        const auto& tag = ahead_[i];
        if (tag.distance < begin) break;
        if (pattern.fits(tag.code)) return tag.distance;
    }
    return std::string_view::npos;
}

void TagIndex::cut(std::size_t begin, std::size_t end)
{
    moveTo(begin);
    while (!behind_.empty() && size_ - behind_.back().distance < end)
        behind_.pop();
    size_ -= end - begin;
}

void TagIndex::moveTo(std::size_t offset)
{
    behind_.takeFrom(ahead_, ahead_.countCloser(offset), size_);
    ahead_.takeFrom(behind_, behind_.countCloser(distanceFromEnd(offset) + 1), size_);
}

} // namespace quillmere
