// Both sweeps go from left to right; what the first one inserts ahead of its place it keeps as
// positions beside the unchanged text. What a deletion of the second one joins begins ahead of the
// place that it reads on from, and so is no tag of it. Held by paragraphs_test.cpp.

#include "document/crossing_formats.h"

#include "document/text_edits.h"
#include "document/text_search.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quillmere {
namespace {

/// Gives each paragraph that a format crosses its own pair.
class CrossingSplit {
public:
    CrossingSplit(std::string_view text, std::string_view open, std::string_view close)
        : text_(text)
        , open_(open)
        , close_(close)
        , lastClose_(findLastIgnoringCase(text, close))
        , begins_(text, "<p")
        , tagEnds_(text, ">")
    {
    }

    [[nodiscard]] TextEdits edits()
    {
        if (lastClose_ == npos) return {};
        // Behind the last end no element crosses a paragraph.
        for (auto at = text_.find('<'); at < lastClose_; at = text_.find('<', at + 1))
            readTag(at);
        return std::move(edits_);
    }

private:
    void readTag(std::size_t at)
    {
        for (; seen_ < reopened_.size() && reopened_[seen_] <= at; ++seen_)
            isOpen_ = true;
        if (standsAt(text_, at, open_)) {
            isOpen_ = true;
        } else if (standsAt(text_, at, close_)) {
            isOpen_ = false;
        } else if (standsAt(text_, at, "</p")) {
            if (isOpen_) splitAt(at);
            isOpen_ = false; // what was begun has its end here, or no paragraph to go on in
        }
    }

    void splitAt(std::size_t paragraphEnd)
    {
        const auto next = begins_.next(paragraphEnd);
        const auto tagEnd = next == npos ? npos : tagEnds_.next(next);
        if (tagEnd == npos) return;
        edits_.insert(paragraphEnd, close_);
        edits_.insert(tagEnd + 1, open_);
        reopened_.push_back(tagEnd + 1);
    }

    std::string_view text_;
    std::string_view open_;
    std::string_view close_;
    std::size_t lastClose_;
    ForwardFinder begins_;
    ForwardFinder tagEnds_;
    TextEdits edits_;
    std::vector<std::size_t> reopened_; // where the format begins again, in rising order
    std::size_t seen_ = 0; // how many of reopened_ lie ahead
    bool isOpen_ = false; // a format has begun in this paragraph
};

/// Finds what is neither tag nor blank, from places behind a tag that do not go back.
class ContentFinder {
public:
    ContentFinder(std::string_view text, std::string_view close)
        : text_(text)
        , close_(close)
    {
    }

    [[nodiscard]] std::size_t next(std::size_t from)
    {
        if (from > answer_) answer_ = search(from);
        return answer_;
    }

private:
    [[nodiscard]] std::size_t search(std::size_t at) const
    {
        while (at < text_.size()) {
            if (text_[at] == '<') {
                const auto end = text_.find('>', at);
                if (end == npos || hidesClose(text_.substr(at, end + 1 - at))) return at;
                at = end;
            } else if (text_[at] != ' ') {
                return at;
            }
            ++at;
        }
        return at;
    }

    /// "<x</b>": up to the end of the element the '<' belongs to no tag.
    [[nodiscard]] bool hidesClose(std::string_view tag) const
    {
        return tag.size() > close_.size() && standsAt(tag, tag.size() - close_.size(), close_);
    }

    std::string_view text_;
    std::string_view close_;
    std::size_t answer_ = 0;
};

} // namespace

void splitCrossingFormats(std::string& text, std::string_view open, std::string_view close)
{
    CrossingSplit(text, open, close).edits().applyTo(text);
}

void dropFormatsWithoutText(std::string& text, std::string_view open, std::string_view close)
{
    TextEdits edits;
    ForwardFinder opens(text, open);
    ForwardFinder closes(text, close);
    ContentFinder content(text, close);
    std::size_t closesFrom = 0;
    for (auto at = opens.next(0); at != npos; at = opens.next(at + 1)) {
        const auto begin = at + open.size();
        const auto end = closes.next(std::max(begin, closesFrom));
        if (end == npos) break;
        if (content.next(begin) < end) continue;
        edits.drop(at, begin);
        edits.drop(end, end + close.size());
        closesFrom = end + close.size();
    }
    edits.applyTo(text);
}

} // namespace quillmere
