// Both sweeps go from left to right; what the first one inserts ahead of its place it keeps as
// positions beside the unchanged text. What a deletion of the second one joins begins ahead of the
// place that it reads on from, and so is no tag of it. Held by corrections_test.cpp.

#include "document/repair/crossing_formats.h"

#include "document/text/text_edits.h"
#include "document/text/text_search.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quillmere {
namespace {

constexpr SearchKey kParagraph = "<p";
constexpr SearchKey kParagraphEnd = "</p";

/// Gives each paragraph that a format crosses its own pair.
class CrossingSplit {
public:
    CrossingSplit(EditedText& text, const SearchKey& open, const SearchKey& close)
        : text_(text)
        , open_(open)
        , close_(close)
    {
    }

    [[nodiscard]] TextEdits edits()
    {
        // Behind the last end no element crosses a paragraph.
        const auto lastClose = text_.findLast(close_);
        std::size_t at = 0;
        while (lastClose != npos && (at = nextBegin(at)) < lastClose) {
            const auto close = text_.find(close_, at);
            at = text_.find(kParagraphEnd, at);
            if (at < close) splitAt(at);
            at = std::min(at, close) + 1; // it has its end here, or no paragraph to go on in
        }
        return std::move(edits_);
    }

private:
    std::size_t nextBegin(std::size_t from)
    {
        while (seen_ < reopened_.size() && reopened_[seen_] < from)
            ++seen_;
        const auto open = text_.find(open_, from);
        return seen_ < reopened_.size() ? std::min(open, reopened_[seen_]) : open;
    }

    void splitAt(std::size_t paragraphEnd)
    {
        const auto next = text_.find(kParagraph, paragraphEnd);
        const auto behind = next == npos ? npos : text_.tagEnd(next);
        if (behind == npos) return;
        edits_.insert(paragraphEnd, close_.text);
        edits_.insert(behind, open_.text);
        reopened_.push_back(behind);
    }

    EditedText& text_;
    SearchKey open_;
    SearchKey close_;
    TextEdits edits_;
    std::vector<std::size_t> reopened_; // where the format begins again, in rising order
    std::size_t seen_ = 0; // how many of reopened_ lie ahead
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

void splitCrossingFormats(EditedText& text, const SearchKey& open, const SearchKey& close)
{
    auto edits = CrossingSplit(text, open, close).edits();
    text.apply(edits);
}

void dropFormatsWithoutText(EditedText& text, const SearchKey& open, const SearchKey& close)
{
    TextEdits edits;
    ContentFinder content(text.whole(), close.text);
    std::size_t closesFrom = 0;
    for (auto at = text.find(open); at != npos; at = text.find(open, at + 1)) {
        const auto begin = at + open.text.size();
        const auto end = text.find(close, std::max(begin, closesFrom));
        if (end == npos) break;
        if (content.next(begin) < end) continue;
        edits.drop(at, begin);
        edits.drop(end, end + close.text.size());
        closesFrom = end + close.text.size();
    }
    text.apply(edits);
}

} // namespace quillmere
