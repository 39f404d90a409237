// All searches go from left to right and see what was inserted ahead of them as positions beside
// the unchanged text; each operation rewrites the text once. Held by corrections_test.cpp, which
// repairs with plain searches.

#include "document/repair/paragraphs.h"

#include "document/repair/crossing_formats.h"
#include "document/text/character_walk.h"
#include "document/text/limits.h"
#include "document/text/text_cutter.h"
#include "document/text/text_edits.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace quillmere {
namespace {

constexpr SearchKey kBegin = "<p";
constexpr SearchKey kEnd = "</p";

/// Knows for places that do not go back whether they lie in an open paragraph, with what was
/// inserted counted in.
class ParagraphWalk {
public:
    explicit ParagraphWalk(const EditedText& text)
        : text_(text)
    {
    }

    /// A paragraph without end is open as well.
    [[nodiscard]] bool isOpenAt(std::size_t offset)
    {
        lastBegin_ = std::max(lastBegin_, lastBetween(kBegin, readTo_, offset));
        // Ends ahead of the last begin no longer matter.
        const auto from = std::max(readTo_, lastBegin_.value_or(0));
        lastEnd_ = std::max(lastEnd_, lastBetween(kEnd, from, offset));
        readTo_ = offset;
        for (; seen_ < inserted_.size() && inserted_[seen_] <= offset; ++seen_)
            lastEnd_ = std::max(lastEnd_, std::optional(inserted_[seen_]));
        return lastBegin_ && lastBegin_ >= lastEnd_; // an end that is inserted there comes first
    }
    void insertBegin(std::size_t offset) { lastBegin_ = offset; }
    /// The offset does not lie ahead of those that were inserted already.
    void insertEnd(std::size_t offset) { inserted_.push_back(offset); }

private:
    [[nodiscard]] std::optional<std::size_t> lastBetween(
        const SearchKey& key, std::size_t from, std::size_t to) const
    {
        const auto at = text_.findLast(key, to, from);
        return at == npos ? std::nullopt : std::optional(at);
    }

    const EditedText& text_;
    std::size_t readTo_ = 0;
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
    const auto first = tagEnd == npos ? npos : findIgnoringCase(text, kBegin.text, tagEnd);
    if (first == npos) return;
    if (holdsText(std::string_view(text).substr(tagEnd, first - tagEnd).substr(1)))
        text.insert(tagEnd + 1, "<p>");
}

/// "</p>x</card>" becomes "</p>x</p></card>", an end that is doubled until the doubled ones go.
void endLastParagraph(std::string& text)
{
    const auto last = findLastIgnoringCase(text, kEnd.text);
    const auto tagEnd = last == npos ? npos : text.find('>', last);
    const auto card = findIgnoringCase(text, "</card");
    if (tagEnd == npos || card == npos || card < tagEnd) return;
    if (holdsText(std::string_view(text).substr(tagEnd, card - tagEnd).substr(1)))
        text.insert(card, "</p>");
}

bool isParagraphBegin(const std::string& text, std::size_t tag)
{
    const char behind = text[tag + 1]; // a zero where the text ends
    return behind == 'p' || behind == 'P';
}

bool isParagraphEnd(const std::string& text, std::size_t tag)
{
    return text[tag + 1] == '/' && lowerCase(text[tag + 2]) == 'p';
}

/// The first paragraph's end with another ahead of it and no begin between them.
std::size_t firstDoubledEnd(const std::string& text)
{
    bool ended = false;
    CharacterWalk tags(text, '<');
    for (auto at = tags.next(); at != npos; at = tags.next()) {
        const std::size_t slash = text[at + 1] == '/' ? 1 : 0; // a zero where the text ends
        if (lowerCase(text[at + 1 + slash]) != 'p') continue;
        if (ended && slash > 0) return at;
        ended = slash > 0;
    }
    return npos;
}

/// Deletes the ends of paragraphs between which none begins, but for the first one.
void dropDoubledEnds(std::string& text)
{
    TextCutter cutter(text);
    bool ended = true; // ahead of the first doubled one
    auto resumeAt = npos;
    for (auto at = firstDoubledEnd(text); at != npos; at = text.find('<', resumeAt)) {
        resumeAt = at + 1;
        if (isParagraphBegin(text, at)) ended = false;
        if (!isParagraphEnd(text, at)) continue;
        if (ended) {
            const auto tagEnd = text.find('>', at);
            if (tagEnd == npos) return;
            cutter.keepTo(at);
            cutter.dropTo(tagEnd + 1);
            cutter.takeBack(kEnd.text.size() - 1, 0); // "<" and "/p>" around it are an end now
            resumeAt = cutter.position();
        }
        ended = true;
    }
}

/// Gives the text to an operation that looks up tags more than once.
template <typename Operation>
void applyTo(
    std::string& text, std::string_view openTag, std::string_view closeTag, Operation operation)
{
    requireAddressable(text);
    if (openTag.empty() || closeTag.empty()) return;
    if (findIgnoringCase(text, openTag) == npos) return;
    EditedText edited{std::string(text)};
    operation(edited, openTag, closeTag);
    text = std::move(edited).take();
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

void WrapInParagraph(EditedText& text, const SearchKey& openTag, const SearchKey& closeTag)
{
    auto at = text.find(openTag);
    if (at == npos) return;
    TextEdits edits;
    ParagraphWalk paragraphs(text);
    for (; at != npos; at = text.find(openTag, at + 1)) {
        if (paragraphs.isOpenAt(at)) continue;
        const auto close = text.find(closeTag, at);
        const auto behind = close == npos ? npos : text.tagEnd(close);
        if (behind == npos) break;
        edits.insert(at, "<p>");
        paragraphs.insertBegin(at);
        edits.insert(behind, "</p>");
        paragraphs.insertEnd(behind);
    }
    text.apply(edits);
}

void SplitAtParagraphs(EditedText& text, const SearchKey& openTag, const SearchKey& closeTag)
{
    if (text.find(openTag) == npos) return;
    splitCrossingFormats(text, openTag, closeTag);
    dropFormatsWithoutText(text, openTag, closeTag);
}

void WrapInParagraph(std::string& text, std::string_view openTag, std::string_view closeTag)
{
    applyTo(text, openTag, closeTag,
        [](EditedText& edited, const SearchKey& open, const SearchKey& close) {
            WrapInParagraph(edited, open, close);
        });
}

void SplitAtParagraphs(std::string& text, std::string_view openTag, std::string_view closeTag)
{
    applyTo(text, openTag, closeTag,
        [](EditedText& edited, const SearchKey& open, const SearchKey& close) {
            SplitAtParagraphs(edited, open, close);
        });
}

} // namespace quillmere
