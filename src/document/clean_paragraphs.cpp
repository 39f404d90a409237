// All loops here are walks over "<p", "</p" or "<br" that go on at the place of what was dropped.
// "<p" takes what else begins so, such as "<pre>". Held by clean_passes_test.cpp.

#include "document/clean_paragraphs.h"

#include <algorithm>

namespace quillmere {
namespace {

constexpr std::string_view kParagraph = "<p";
constexpr std::string_view kParagraphEnd = "</p";
constexpr std::string_view kBreak = "<br";
constexpr std::string_view kEmptyParagraph = "<p>&nbsp";

bool isAligned(EditedText& text, std::size_t begin, std::size_t end)
{
    constexpr std::string_view kAlign = "align";
    const auto at = text.find(kAlign, begin, end);
    return at != npos && at + kAlign.size() <= end;
}

// Drops the paragraph begins that follow the one at `first` with no end between. The tag that
// takes the first one's place is put there when the run is through, so that a long run does
// not go back for each of its tags.
class ParagraphRun {
public:
    ParagraphRun(EditedText& text, std::size_t first)
        : text_(text)
        , first_(first)
        , firstEnd_(text.tagEnd(first))
    {
    }

    void merge()
    {
        while (mergeNext()) { }
        settle();
    }

private:
    bool mergeNext()
    {
        const auto next = text_.find(kParagraph, first_ + 1);
        if (next == npos || text_.find(kParagraphEnd, first_ + 1) < next) return false;
        const auto nextEnd = text_.tagEnd(next);
        if (nextEnd == npos) return false;
        const bool aligned = isAligned(text_, next, nextEnd);
        if (next < firstEnd_) {
            mergeInner(next, nextEnd, aligned);
            return true;
        }
        if (aligned) replacement_ = text_.copy(next, nextEnd);
        text_.cut(next, nextEnd);
        if (aligned && replacement_.find('<', 1) != npos) settle();
        return true;
    }

    // In "<p <p align=center>" the inner tag is the second one.
    void mergeInner(std::size_t inner, std::size_t innerEnd, bool aligned)
    {
        if (aligned) {
            text_.cut(first_, inner);
        } else {
            text_.cut(inner, innerEnd);
        }
        firstEnd_ = text_.tagEnd(first_);
    }

    void settle()
    {
        if (replacement_.empty()) return;
        text_.replace(first_, firstEnd_, replacement_);
        firstEnd_ = first_ + replacement_.size();
        replacement_.clear();
    }

    EditedText& text_;
    std::size_t first_;
    std::size_t firstEnd_;
    std::string replacement_; // empty: the first tag stays
};

// Where text that is more than blanks ends in front of a '<': the offset of that '<'.
std::size_t endOfLastText(std::string_view text)
{
    for (auto end = text.rfind('<'); end != npos && end > 0;) {
        const auto tag = text.rfind('<', end - 1);
        const auto piece = text.substr(0, end).substr(tag == npos ? 0 : tag);
        const auto tagEnd = piece.find('>');
        if (tagEnd != npos && piece.find_first_not_of(' ', tagEnd + 1) != npos) return end;
        end = tag;
    }
    return 0;
}

// Each of these that follows the one before it, and the last text, is content.
constexpr std::string_view kContentInOrder[]
    = {"<img", "<a", "<!--select", "<table", "</img", "</a", "<!--/select", "</table", "<!--/do"};

std::size_t behindContent(std::string_view text)
{
    auto behind = endOfLastText(text);
    for (const auto key : kContentInOrder) {
        const auto at = findIgnoringCase(text, key, behind);
        if (at != npos) behind = at + 1;
    }
    return behind;
}

// Melts the second of two plain paragraphs into the first. Their tags reach from `first` and
// `next` to `nextEnd`. Returns where the walk goes on.
std::size_t melt(EditedText& text, std::size_t first, std::size_t next, std::size_t nextEnd)
{
    text.cut(next, nextEnd);
    // The walk steps back by what was dropped, although nothing ahead of it has moved. So in
    // "</p><p><p class="a">" the end ahead of the first paragraph is the one that goes.
    auto back = first + 1 - std::min(first + 1, nextEnd - next - 1);
    const auto end = text.find(kParagraphEnd, back == 0 ? 0 : back - 1);
    const auto length = end == npos ? 0 : text.cutTag(end);
    if (length > 0) back -= std::min(back, length - 1);
    return back;
}

} // namespace

void breakAtEmptyParagraphs(EditedText& text)
{
    for (auto at = text.find(kEmptyParagraph); at != npos; at = text.find(kEmptyParagraph, at)) {
        const auto end = text.find(kParagraphEnd, at + 1);
        const auto behind = end == npos ? npos : text.tagEnd(end);
        if (behind == npos) return;
        text.replace(at, behind, "<br/>");
    }
}

void mergeParagraphRuns(EditedText& text)
{
    for (auto at = text.find(kParagraph); at != npos;) {
        ParagraphRun(text, at).merge();
        const bool hasEnd = text.find(kParagraphEnd, at + 1) != npos;
        const bool dropped = !hasEnd && text.cutTag(at) > 0;
        at = text.find(kParagraph, dropped ? at : at + 1);
    }
}

void dropTrailingParagraphs(std::string& text)
{
    const auto behind = behindContent(text);
    const auto from = behind == 0 ? 0 : behind - 1;
    EditedText edited(std::move(text));
    for (const auto key : {kParagraph, kParagraphEnd, kBreak})
        edited.cutEveryTag(key, from);
    text = std::move(edited).take();
}

void mergePlainParagraphs(EditedText& text)
{
    for (auto first = text.find(kParagraph); first != npos;) {
        const auto next = text.find(kParagraph, first + 1);
        const auto nextEnd = next == npos ? npos : text.tagEnd(next);
        if (nextEnd == npos) return;
        if (isAligned(text, first, text.tagEnd(first)) || isAligned(text, next, nextEnd)) {
            first = next;
        } else {
            first = text.find(kParagraph, melt(text, first, next, nextEnd));
        }
    }
}

void dropDoubledParagraphEnds(EditedText& text)
{
    for (auto at = text.find(kParagraphEnd); at != npos;) {
        const auto next = text.find(kParagraphEnd, at + 1);
        if (next == npos) return;
        const bool doubled = text.find(kParagraph, at + 1) > next;
        if (doubled && text.cutTag(at) == 0) return;
        at = doubled ? text.find(kParagraphEnd, at) : next;
    }
}

void dropLooseBreaks(EditedText& text)
{
    for (auto at = text.find(kBreak); at != npos;) {
        const auto end = text.find(kParagraphEnd, at + 1);
        const bool stays = end != npos && end < text.find(kParagraph, at + 1);
        if (!stays && text.cutTag(at) == 0) return;
        at = text.find(kBreak, stays ? at + 1 : at);
    }
}

} // namespace quillmere
