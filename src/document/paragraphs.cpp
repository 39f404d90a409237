// All searches go from left to right and see what was inserted ahead of them as positions beside
// the unchanged text; each operation rewrites the text once. Held by paragraphs_test.cpp, which
// repairs with plain searches.

#include "document/paragraphs.h"

#include "document/crossing_formats.h"
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
    splitCrossingFormats(result, openTag, closeTag);
    dropFormatsWithoutText(result, openTag, closeTag);
    text = std::move(result);
}

} // namespace quillmere
