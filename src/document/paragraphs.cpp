// All searches go from left to right and see what was inserted ahead of them as positions beside
// the unchanged text; each operation rewrites the text once. Held by paragraphs_test.cpp, which
// repairs with plain searches.

#include "document/paragraphs.h"

#include "document/limits.h"
#include "document/text_cutter.h"
#include "document/text_edits.h"
#include "document/text_search.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace quillmere {
namespace {

constexpr std::string_view kBegin = "<p";
constexpr std::string_view kEnd = "</p";

/// Knows for places that do not go back whether they lie in an open paragraph, with what was
/// inserted counted in.
class ParagraphWalk {
public:
    explicit ParagraphWalk(std::string_view text)
        : begins_(text, kBegin)
        , ends_(text, kEnd)
    {
    }

    /// A paragraph without end is open as well.
    [[nodiscard]] bool isOpenAt(std::size_t offset)
    {
        goThrough(begins_, offset, lastBegin_);
        goThrough(ends_, offset, lastEnd_);
        for (; seen_ < inserted_.size() && inserted_[seen_] <= offset; ++seen_)
            lastEnd_ = std::max(lastEnd_, std::optional(inserted_[seen_]));
        return lastBegin_ && lastBegin_ >= lastEnd_; // an end that is inserted there comes first
    }
    void insertBegin(std::size_t offset) { lastBegin_ = offset; }
    /// The offset does not lie ahead of those that were inserted already.
    void insertEnd(std::size_t offset) { inserted_.push_back(offset); }

private:
    static void goThrough(
        ForwardFinder& finder, std::size_t offset, std::optional<std::size_t>& last)
    {
        for (auto at = finder.next(last ? *last + 1 : 0); at < offset; at = finder.next(at + 1))
            last = at;
    }

    ForwardFinder begins_;
    ForwardFinder ends_;
    std::vector<std::size_t> inserted_;
    std::size_t seen_ = 0; // how many of inserted_ lie ahead
    std::optional<std::size_t> lastBegin_;
    std::optional<std::size_t> lastEnd_;
};

/// Gives each paragraph that a format crosses its own pair.
class CrossingSplit {
public:
    CrossingSplit(std::string_view text, std::string_view open, std::string_view close)
        : text_(text)
        , open_(open)
        , close_(close)
        , lastClose_(findLastIgnoringCase(text, close))
        , begins_(text, kBegin)
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
        } else if (standsAt(text_, at, kEnd)) {
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

void dropPairsWithoutText(std::string& text, std::string_view open, std::string_view close)
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

/// The codes 48 to 90, with small letters as capitals: the signs between digits and letters count
/// as well, so that any tag does.
bool holdsText(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
        [](char c) { return (c >= '0' && c <= 'Z') || (c >= 'a' && c <= 'z'); });
}

/// "<card>x<p>" becomes "<card><p>x<p>".
void beginFirstParagraph(std::string& text)
{
    const auto card = findIgnoringCase(text, "<card");
    const auto tagEnd = card == npos ? npos : text.find('>', card);
    const auto first = tagEnd == npos ? npos : findIgnoringCase(text, kBegin, tagEnd);
    if (first == npos) return;
    if (holdsText(std::string_view(text).substr(tagEnd, first - tagEnd).substr(1)))
        text.insert(tagEnd + 1, "<p>");
}

/// "</p>x</card>" becomes "</p>x</p></card>", an end that is doubled until the doubled ones go.
void endLastParagraph(std::string& text)
{
    const auto last = findLastIgnoringCase(text, kEnd);
    const auto tagEnd = last == npos ? npos : text.find('>', last);
    const auto card = findIgnoringCase(text, "</card");
    if (tagEnd == npos || card == npos || card < tagEnd) return;
    if (holdsText(std::string_view(text).substr(tagEnd, card - tagEnd).substr(1)))
        text.insert(card, "</p>");
}

/// Deletes the ends of paragraphs between which none begins, but for the first one.
void dropDoubledEnds(std::string& text)
{
    TextCutter cutter(text);
    bool ended = false;
    auto resumeAt = npos;
    for (auto at = text.find('<'); at != npos; at = text.find('<', resumeAt)) {
        resumeAt = at + 1;
        if (standsAt(text, at, kBegin)) ended = false;
        if (!standsAt(text, at, kEnd)) continue;
        if (ended) {
            const auto tagEnd = text.find('>', at);
            if (tagEnd == npos) return;
            cutter.keepTo(at);
            cutter.dropTo(tagEnd + 1);
            cutter.takeBack(kEnd.size() - 1, 0); // "<" and "/p>" around it are an end now
            resumeAt = cutter.position();
        }
        ended = true;
    }
}

} // namespace

void RepairParagraphs(std::string& text)
{
    requireAddressable(text);
    std::string result = text;
    beginFirstParagraph(result);
    endLastParagraph(result);
    requireAddressable(result);
    dropDoubledEnds(result);
    text = std::move(result);
}

void WrapInParagraph(std::string& text, std::string_view openTag, std::string_view closeTag)
{
    requireAddressable(text);
    TextEdits edits;
    ParagraphWalk paragraphs(text);
    ForwardFinder opens(text, openTag);
    ForwardFinder closes(text, closeTag);
    ForwardFinder tagEnds(text, ">");
    for (auto at = opens.next(0); at != npos; at = opens.next(at + 1)) {
        const auto close = closes.next(at);
        const auto tagEnd = close == npos ? npos : tagEnds.next(close);
        if (tagEnd == npos) break;
        if (paragraphs.isOpenAt(at)) continue;
        edits.insert(at, "<p>");
        paragraphs.insertBegin(at);
        edits.insert(tagEnd + 1, "</p>");
        paragraphs.insertEnd(tagEnd + 1);
    }
    edits.applyTo(text);
}

void SplitAtParagraphs(std::string& text, std::string_view openTag, std::string_view closeTag)
{
    requireAddressable(text);
    if (findIgnoringCase(text, openTag) == npos) return;
    std::string result = text;
    CrossingSplit(result, openTag, closeTag).edits().applyTo(result);
    dropPairsWithoutText(result, openTag, closeTag);
    text = std::move(result);
}

} // namespace quillmere
