// The tags of the pristine text lie sorted by key and offset, so that a key that is missing does
// not cost a search through the rest. Held by wml_layout_test.cpp.

#include "document/tag_gaps.h"

#include "document/windows1252.h"

#include <algorithm>

namespace quillmere {
namespace {

bool isWhite(char character)
{
    return static_cast<unsigned char>(character) < 33;
}

constexpr unsigned kOffsetBits = 40;

/// The key in the high bits. "<>" is a key of its own; no tag is known by "<>" and a third one.
std::uint64_t packed(std::string_view key, std::size_t offset)
{
    std::uint64_t bits = 0;
    for (std::size_t i = 1; i < kTagKeyLength; ++i) {
        const bool ends = i >= key.size() || key[i - 1] == '>';
        bits = bits << 8U | (ends ? 0U : static_cast<unsigned char>(lowerCase(key[i])));
    }
    return bits << kOffsetBits | offset;
}

} // namespace

void GapWalk::goAheadOf(std::size_t tag)
{
    tag_ = tag;
    const auto before = begin_;
    for (auto end = tagEnds_.next(begin_); end < tag; end = tagEnds_.next(begin_))
        begin_ = end + 1;
    if (begin_ == before) return;
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

PristineWalk::PristineWalk(std::string_view text)
    : gaps_(text)
{
    for (auto at = text.find('<'); at != npos; at = text.find('<', at + 1)) {
        const auto key = text.substr(at, kTagKeyLength);
        if (key.size() == kTagKeyLength || key == "<>") tags_.push_back(packed(key, at));
    }
    std::sort(tags_.begin(), tags_.end());
}

std::optional<GapSpace> PristineWalk::goTo(std::string_view key)
{
    const auto wanted = packed(key, from_);
    const auto found = std::lower_bound(tags_.begin(), tags_.end(), wanted);
    if (found == tags_.end() || *found >> kOffsetBits != wanted >> kOffsetBits) return std::nullopt;
    const auto tag = static_cast<std::size_t>(*found & ((std::uint64_t{1} << kOffsetBits) - 1));
    from_ = tag + 1;
    gaps_.goAheadOf(tag);
    if (!gaps_.exists()) return std::nullopt;
    return gaps_.space();
}

} // namespace quillmere
