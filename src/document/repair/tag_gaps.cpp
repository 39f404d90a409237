// Mostly the next tag is the one that is asked for. Where it is not, the tags of the pristine text
// are linked by what their keys have in common, so that each is passed once; a key that is missed
// once is missing for good, as the walk never goes back. Held by corrections_test.cpp.

#include "document/repair/tag_gaps.h"

#include "document/text/character_walk.h"
#include "document/text/windows1252.h"

#include <utility>

namespace quillmere {
namespace {

bool isWhite(char character)
{
    return static_cast<unsigned char>(character) < 33;
}

/// Letters have different low bits, so that mostly one key has the bucket.
std::size_t bucketOf(std::uint16_t key)
{
    return (key ^ key >> 5U) & 0xFFU;
}

} // namespace

void GapWalk::goAheadOf(std::size_t tag)
{
    auto begin = tag;
    while (begin > tag_ && text_[begin - 1] != '>')
        --begin;
    if (begin > tag_) { // else the gap takes in that of the last tag
        begin_ = leadEnd_ = begin;
        while (isWhite(text_[leadEnd_]))
            ++leadEnd_; // ends at the tag at last
    }
    tag_ = tag;
}

std::size_t GapWalk::trailBegin() const
{
    auto begin = tag_;
    while (begin > leadEnd_ && isWhite(text_[begin - 1]))
        --begin;
    return begin;
}

GapSpace GapWalk::space() const
{
    const auto trail = trailBegin();
    return {text_.substr(begin_, leadEnd_ - begin_), text_.substr(trail, tag_ - trail)};
}

/// "<>" is a key of its own; no tag is known by "<>" and a third character.
PristineWalk::Key PristineWalk::keyOf(std::string_view tag)
{
    const auto code = [tag](std::size_t i) {
        return static_cast<unsigned>(static_cast<unsigned char>(lowerCase(tag[i])));
    };
    return static_cast<Key>(tag[1] == '>' ? code(1) << 8U : code(1) << 8U | code(2));
}

PristineWalk::PristineWalk(std::string_view text)
    : gaps_(text)
{
    constexpr std::size_t kUsualDistance = 12;
    tags_.reserve(text.size() / kUsualDistance);
    CharacterWalk openings(text, '<');
    for (auto at = openings.next(); at != npos; at = openings.next()) {
        const auto tag = text.substr(at, kTagKeyLength);
        if (tag.size() == kTagKeyLength || tag == "<>")
            tags_.push_back({static_cast<std::uint32_t>(at), kNone, keyOf(tag)});
    }
}

void PristineWalk::fillBuckets()
{
    bucketsAreFilled_ = true;
    buckets_.fill(kNone);
    for (auto i = static_cast<Index>(tags_.size()); i-- > next_;)
        tags_[i].nextInBucket = std::exchange(buckets_[bucketOf(tags_[i].key)], i);
}

PristineWalk::Index PristineWalk::findInBucket(Key key)
{
    if (missing_[key]) return kNone;
    if (!bucketsAreFilled_) fillBuckets();
    auto& first = buckets_[bucketOf(key)];
    while (first != kNone && first < next_)
        first = tags_[first].nextInBucket;
    auto found = first;
    while (found != kNone && tags_[found].key != key)
        found = tags_[found].nextInBucket;
    missing_[key] = found == kNone;
    return found;
}

std::optional<GapSpace> PristineWalk::goTo(std::string_view tag)
{
    const auto key = keyOf(tag);
    const bool isNext = next_ < tags_.size() && tags_[next_].key == key;
    const auto found = isNext ? next_ : findInBucket(key);
    if (found == kNone) return std::nullopt;
    next_ = found + 1;
    gaps_.goAheadOf(tags_[found].offset);
    if (!gaps_.exists()) return std::nullopt;
    return gaps_.space();
}

} // namespace quillmere
