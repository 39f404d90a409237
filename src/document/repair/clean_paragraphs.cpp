// All loops here are walks over "<p", "</p" or "<br" that go on at the place of what was dropped.
// "<p" takes what else begins so, such as "<pre>". Held by clean_passes_test.cpp.

#include "document/repair/clean_paragraphs.h"

namespace quillmere {
namespace {

constexpr SearchKey kParagraph = "<p";
constexpr SearchKey kParagraphEnd = "</p";
constexpr SearchKey kBreak = "<br";
constexpr SearchKey kEmptyParagraph = "<p>&nbsp";

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
constexpr SearchKey kContentInOrder[]
    = {"<img", "<a", "<!--select", "<table", "</img", "</a", "<!--/select", "</table", "<!--/do"};

std::size_t behindContent(EditedText& text)
{
    auto behind = endOfLastText(text.whole());
    for (const auto& key : kContentInOrder) {
        const auto at = text.find(key, behind);
        if (at != npos) behind = at + 1;
    }
    return behind;
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

void dropTrailingParagraphs(EditedText& text)
{
    const auto behind = behindContent(text);
    const auto from = behind == 0 ? 0 : behind - 1;
    for (const auto& key : {kParagraph, kParagraphEnd, kBreak})
        text.cutEveryTag(key, from);
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
