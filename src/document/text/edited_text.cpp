// The text lies in one buffer with a gap where the last change was, so that neighbouring changes
// move little. What a search has read is kept across a change: the places ahead of it stay, those
// behind it move along, and only the places whose text touches the change are looked at again.
// Most texts are short and hold few tags, so that a search for a tag mostly ends in the index.
// Held by clean_passes_test.cpp.

#include "document/text/edited_text.h"

#include "document/text/windows1252.h"

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

constexpr std::size_t kSmallestGap = 256;
constexpr std::size_t kBackwardStep = 512; // read forward, which is faster
constexpr std::size_t kFewTags = 128; // are read again sooner than remembered

} // namespace

EditedText::EditedText(std::string&& text)
    : buffer_(std::move(text))
{
    tags_.read(buffer_);
}

std::string EditedText::copy(std::size_t begin, std::size_t end) const
{
    const auto gap = gapEnd_ - gapBegin_;
    std::string piece;
    if (begin < gapBegin_) piece.append(buffer_, begin, std::min(end, gapBegin_) - begin);
    const auto behindGap = std::max(begin, gapBegin_);
    if (behindGap < end) piece.append(buffer_, behindGap + gap, end - behindGap);
    return piece;
}

std::string_view EditedText::whole()
{
    moveGap(size());
    return std::string_view(buffer_).substr(0, gapBegin_);
}

std::size_t EditedText::find(const SearchKey& key, std::size_t from, std::size_t limit)
{
    if (from > size() || from >= limit) return npos;
    if (key.isTag && tags_.count() <= kFewTags) return findTag(key, from, limit);
    Search& known = remembered(key);
    if (from < known.from) {
        const auto nearEnd = std::min(limit, known.from);
        const auto nearer = findFrom(key, from, nearEnd);
        if (nearer != npos || nearEnd < known.from) {
            keepLonger(known, {key, from, std::min(nearer, nearEnd), nearer != npos});
            return nearer;
        }
        known.from = from;
    } else if (from > known.to) {
        known = {key, from, from, false};
    }
    if (!known.found && known.to < std::min(limit, size())) {
        const auto at = findFrom(key, known.to, limit);
        known.found = at != npos;
        known.to = known.found ? at : std::min(limit, size());
    }
    return known.found ? known.to : npos;
}

std::size_t EditedText::findLast(const SearchKey& key, std::size_t before, std::size_t from) const
{
    if (key.isTag) return findLastTag(key, from, before);
    for (auto end = std::min(before, size()); end > from;) {
        const auto begin = end - std::min(end - from, kBackwardStep);
        auto last = npos;
        for (auto at = findFrom(key, begin, end); at != npos; at = findFrom(key, at + 1, end))
            last = at;
        if (last != npos) return last;
        end = begin;
    }
    return npos;
}

std::size_t EditedText::tagEnd(std::size_t begin)
{
    constexpr SearchKey kTagEnd = ">";
    const auto at = find(kTagEnd, begin);
    return at == npos ? npos : at + 1;
}

void EditedText::replace(std::size_t begin, std::size_t end, std::string_view piece)
{
    if (begin == end && piece.empty()) return;
    ++changes_;
    moveGap(begin);
    gapEnd_ += end - begin;
    if (gapEnd_ - gapBegin_ < piece.size()) growGap(piece.size());
    piece.copy(buffer_.data() + gapBegin_, piece.size());
    gapBegin_ += piece.size();
    tags_.replace(begin, end, piece, [this](std::size_t tag) { return tagCodeAt(tag); });
    for (std::size_t i = 0; i < std::min(searchCount_, searches_.size()); ++i)
        adjust(searches_[i], {begin, end, begin + piece.size()});
}

std::size_t EditedText::cutTag(std::size_t begin)
{
    const auto end = tagEnd(begin);
    if (end == npos) return 0;
    cut(begin, end);
    return end - begin;
}

void EditedText::cutEveryTag(const SearchKey& key, std::size_t from)
{
    for (auto at = find(key, from); at != npos && cutTag(at) > 0; at = find(key, from)) { }
}

void EditedText::apply(TextEdits& edits)
{
    if (edits.empty()) return;
    closeGap();
    edits.applyTo(buffer_);
    readAgain();
}

void EditedText::rework(void (*operation)(std::string&))
{
    closeGap();
    const std::string before = buffer_;
    operation(buffer_);
    if (buffer_ != before) readAgain(); // else all that is known is still true
}

std::string EditedText::take() &&
{
    closeGap();
    return std::move(buffer_);
}

// Of two pieces of knowledge that do not touch the longer one would cost more to find again.
void EditedText::keepLonger(Search& known, const Search& other)
{
    if (other.to - other.from > known.to - known.from) known = other;
}

EditedText::Search& EditedText::remembered(const SearchKey& key)
{
    for (std::size_t i = 0; i < std::min(searchCount_, searches_.size()); ++i) {
        if (searches_[i].key == key) return searches_[i];
    }
    Search& fresh = searches_[searchCount_++ % searches_.size()];
    fresh = {key, 0, 0, false};
    return fresh;
}

std::size_t EditedText::findFrom(const SearchKey& key, std::size_t begin, std::size_t limit) const
{
    return key.isTag ? findTag(key, begin, limit) : findText(key, begin, limit);
}

std::size_t EditedText::findTag(const SearchKey& key, std::size_t begin, std::size_t limit) const
{
    auto at = tags_.find(key.pattern, begin, limit);
    while (at != npos && !key.pattern.isWhole && !standsHere(key, at))
        at = tags_.find(key.pattern, at + 1, limit);
    return at;
}

std::size_t EditedText::findLastTag(
    const SearchKey& key, std::size_t from, std::size_t before) const
{
    auto at = tags_.findLast(key.pattern, from, before);
    while (at != npos && !key.pattern.isWhole && !standsHere(key, at))
        at = tags_.findLast(key.pattern, from, at);
    return at;
}

std::size_t EditedText::findText(const SearchKey& key, std::size_t begin, std::size_t limit) const
{
    const auto end = std::min(limit, size());
    const auto reach = key.text.size() - 1;
    const std::string_view buffer(buffer_);
    if (begin < gapBegin_) {
        const auto ahead = buffer.substr(0, std::min(gapBegin_, end + reach));
        const auto at = findIgnoringCase(ahead, key.text, begin);
        if (at != npos) return at;
        const auto across = std::max(begin, gapBegin_ - std::min(gapBegin_, reach));
        for (auto place = across; place < std::min(gapBegin_, end); ++place) {
            if (standsHere(key, place)) return place;
        }
    }
    const auto gap = gapEnd_ - gapBegin_;
    const auto behind = buffer.substr(0, end + gap + reach);
    const auto at = findIgnoringCase(behind, key.text, std::max(begin, gapBegin_) + gap);
    return at == npos ? npos : at - gap;
}

bool EditedText::standsHere(const SearchKey& key, std::size_t offset) const
{
    const auto end = offset + key.text.size();
    if (end > size()) return false;
    if (end <= gapBegin_) return standsAt(buffer_, offset, key.text);
    if (offset >= gapBegin_) return standsAt(buffer_, offset + gapEnd_ - gapBegin_, key.text);
    return standsAt(copy(offset, end), 0, key.text);
}

TagCode EditedText::tagCodeAt(std::size_t offset) const
{
    const auto end = std::min(offset + kTagCodeReach, size());
    if (end > gapBegin_) return tagCode(copy(offset, end));
    return tagCode(std::string_view(buffer_).substr(offset, gapBegin_ - offset));
}

void EditedText::closeGap()
{
    buffer_.erase(gapBegin_, gapEnd_ - gapBegin_);
    gapBegin_ = gapEnd_ = 0;
}

void EditedText::readAgain()
{
    tags_.read(buffer_);
    searchCount_ = 0;
    ++changes_;
}

void EditedText::moveGap(std::size_t offset)
{
    char* const text = buffer_.data();
    if (gapBegin_ == gapEnd_) {
        gapBegin_ = gapEnd_ = offset;
    } else if (offset < gapBegin_) {
        std::move_backward(text + offset, text + gapBegin_, text + gapEnd_);
        gapEnd_ -= gapBegin_ - offset;
        gapBegin_ = offset;
    } else if (offset > gapBegin_) {
        const auto length = offset - gapBegin_;
        std::move(text + gapEnd_, text + gapEnd_ + length, text + gapBegin_);
        gapBegin_ += length;
        gapEnd_ += length;
    }
}

void EditedText::growGap(std::size_t atLeast)
{
    const auto more = std::max({atLeast, kSmallestGap, buffer_.size() / 4});
    buffer_.insert(gapEnd_, more, ' ');
    gapEnd_ += more;
}

void EditedText::adjust(Search& search, const Change& change) const
{
    // Places ahead of this one have their whole text ahead of the change.
    const auto reach = search.key.text.size() - 1;
    const auto untouched = change.begin > reach ? change.begin - reach : 0;
    if (search.found ? search.to < untouched : search.to <= untouched) return;
    const auto moved = [&change](std::size_t at) { return at - change.oldEnd + change.newEnd; };
    if (search.from >= change.oldEnd) {
        search.from = moved(search.from);
        search.to = moved(search.to);
    } else if (search.to < change.oldEnd) {
        search.from = std::min(search.from, change.begin);
        search.to = std::max(search.from, std::min(search.to, untouched));
        search.found = false;
    } else {
        const auto again = std::max(std::min(search.from, change.begin), untouched);
        const auto formed = findFrom(search.key, again, change.newEnd);
        const auto from = std::min(search.from, again);
        search.from = formed == npos ? from : change.newEnd;
        search.to = moved(search.to);
        if (formed != npos) keepLonger(search, {search.key, from, formed, true});
    }
}

} // namespace quillmere
