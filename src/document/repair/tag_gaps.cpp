// The tags of one key in the pristine text are linked, so that each is passed once and a key that
// is missing does not cost a search through the rest. Held by corrections_test.cpp.

#include "document/repair/tag_gaps.h"

#include "document/text/windows1252.h"

#include <bit>
#include <utility>

namespace quillmere {
namespace {

bool isWhite(char character)
{
    return static_cast<unsigned char>(character) < 33;
}

} // namespace

void GapWalk::goAheadOf(std::size_t tag)
{
    tag_ = tag;
    if (nextEnd_ >= tag) return;
    for (; nextEnd_ < tag; nextEnd_ = text_.find('>', begin_))
        begin_ = nextEnd_ + 1;
    leadEnd_ = begin_;
    while (isWhite(text_[leadEnd_]))
        ++leadEnd_; // ends at the tag at last
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
PristineWalk::Key PristineWalk::packed(std::string_view key)
{
    const auto code = [key](std::size_t i) {
        return static_cast<unsigned>(static_cast<unsigned char>(lowerCase(key[i])));
    };
    return static_cast<Key>(key[1] == '>' ? code(1) << 8U : code(1) << 8U | code(2));
}

PristineWalk::PristineWalk(std::string_view text)
    : gaps_(text)
{
    addTags(text);
    buckets_.assign(std::bit_ceil(tags_.size() + 1), kNone);
    for (auto i = static_cast<Index>(tags_.size()); i-- > 0;) {
        const auto key = text.substr(tags_[i].offset, kTagKeyLength);
        if (key.size() == kTagKeyLength || key == "<>") linkTag(i, packed(key));
    }
}

void PristineWalk::addTags(std::string_view text)
{
    constexpr std::size_t kUsualDistance = 16;
    tags_.reserve(text.size() / kUsualDistance);
    for (auto at = text.find('<'); at != npos; at = text.find('<', at + 1))
        tags_.push_back({static_cast<std::uint32_t>(at), kNone});
}

void PristineWalk::linkTag(Index tag, Key key)
{
    if (auto* const known = find(key)) {
        tags_[tag].nextOfKey = std::exchange(known->first, tag);
    } else {
        auto& bucket = bucketOf(key);
        keys_.push_back({key, tag, bucket});
        bucket = static_cast<Index>(keys_.size() - 1);
    }
}

PristineWalk::Index& PristineWalk::bucketOf(Key key)
{
    return buckets_[static_cast<unsigned>(key ^ (key >> 8U)) & (buckets_.size() - 1)];
}

PristineWalk::TagsOfKey* PristineWalk::find(Key key)
{
    auto at = bucketOf(key);
    while (at != kNone && keys_[at].key != key)
        at = keys_[at].nextInBucket;
    return at == kNone ? nullptr : &keys_[at];
}

std::optional<GapSpace> PristineWalk::goTo(std::string_view key)
{
    auto* const known = find(packed(key));
    if (known == nullptr) return std::nullopt;
    auto& tag = known->first;
    while (tag != kNone && tags_[tag].offset < from_)
        tag = tags_[tag].nextOfKey;
    if (tag == kNone) return std::nullopt;
    from_ = tags_[tag].offset + 1;
    gaps_.goAheadOf(tags_[tag].offset);
    if (!gaps_.exists()) return std::nullopt;
    return gaps_.space();
}

} // namespace quillmere
