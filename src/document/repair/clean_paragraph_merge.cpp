// Two ways in which several paragraphs become one: runs of begins, where the last aligned one
// stays, and neighbours without alignment. Both keep what they know of the first paragraph's tag,
// since thousands may melt into one. Held by clean_passes_test.cpp.

#include "document/repair/clean_paragraph_merge.h"

#include <algorithm>

namespace quillmere {
namespace {

constexpr SearchKey kParagraph = "<p";
constexpr SearchKey kParagraphEnd = "</p";

bool isAligned(EditedText& text, std::size_t begin, std::size_t end)
{
    constexpr SearchKey kAlign = "align";
    const auto at = text.find(kAlign, begin, end);
    return at != npos && at + kAlign.text.size() <= end;
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

// Walks over neighbouring paragraphs and melts plain ones. What is known of the first one's tag is
// kept while more and more of what follows melts into it.
class PlainMerge {
public:
    explicit PlainMerge(EditedText& text)
        : text_(text)
    {
    }

    void merge()
    {
        for (first_ = text_.find(kParagraph); first_ != npos;) {
            const auto next = text_.find(kParagraph, first_ + 1);
            const auto nextEnd = next == npos ? npos : text_.tagEnd(next);
            if (nextEnd == npos) return;
            lookAtFirst();
            const bool plain = !firstIsAligned_ && !isAligned(text_, next, nextEnd);
            first_ = plain ? text_.find(kParagraph, melt(next, nextEnd)) : next;
        }
    }

private:
    void lookAtFirst()
    {
        if (seenAt_ == first_) return;
        seenAt_ = first_;
        firstEnd_ = text_.tagEnd(first_);
        firstIsAligned_ = isAligned(text_, first_, firstEnd_);
    }

    std::size_t cutTag(std::size_t begin)
    {
        if (begin < firstEnd_) seenAt_ = npos;
        return text_.cutTag(begin);
    }

    // Returns where the walk goes on: it steps back by what was dropped, although nothing ahead of
    // it has moved. So in "</p><p><p class="a">" the end ahead of both is the one that goes.
    std::size_t melt(std::size_t next, std::size_t nextEnd)
    {
        cutTag(next);
        auto back = first_ + 1 - std::min(first_ + 1, nextEnd - next - 1);
        const auto end = text_.find(kParagraphEnd, back == 0 ? 0 : back - 1);
        const auto length = end == npos ? 0 : cutTag(end);
        if (length > 0) back -= std::min(back, length - 1);
        return back;
    }

    EditedText& text_;
    std::size_t first_ = 0;
    std::size_t seenAt_ = npos; // where the tag stands that the following is known of
    std::size_t firstEnd_ = 0;
    bool firstIsAligned_ = false;
};

} // namespace

void mergeParagraphRuns(EditedText& text)
{
    for (auto at = text.find(kParagraph); at != npos;) {
        ParagraphRun(text, at).merge();
        const bool hasEnd = text.find(kParagraphEnd, at + 1) != npos;
        const bool dropped = !hasEnd && text.cutTag(at) > 0;
        at = text.find(kParagraph, dropped ? at : at + 1);
    }
}

void mergePlainParagraphs(EditedText& text)
{
    PlainMerge(text).merge();
}

} // namespace quillmere
