// How text that stands in no paragraph gets one; the card's end marker stands already, behind the
// do block. Held by clean_passes_test.cpp.

#include "document/repair/clean_card_text.h"

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

constexpr SearchKey kCard = "<!--card";
constexpr SearchKey kCardEnd = "<!--/card";
constexpr SearchKey kBody = "<body";
constexpr SearchKey kDo = "<!--do";
constexpr SearchKey kParagraph = "<p";
constexpr SearchKey kParagraphEnd = "</p";
constexpr std::string_view kNewParagraph = "<p>";
constexpr std::string_view kNewParagraphEnd = "</p>";

struct TagPair {
    SearchKey begin;
    SearchKey end;
};
// Tables and lists keep their text to themselves; of the rest only the tags are no text.
constexpr TagPair kWithoutLooseText[]
    = {{"<table", "</table"}, {"<!--select", "<!--/select"}, {"<", ">"}};

void cutElements(EditedText& text, const TagPair& pair)
{
    for (auto at = text.find(pair.begin); at != npos; at = text.find(pair.begin, at)) {
        const auto end = text.find(pair.end, at);
        const auto behind = end == npos ? npos : text.tagEnd(end);
        if (behind == npos) return;
        text.cut(at, behind);
    }
}

bool hasLooseText(std::string content)
{
    EditedText text(std::move(content));
    for (const auto& pair : kWithoutLooseText)
        cutElements(text, pair);
    const auto rest = std::move(text).take();
    return std::ranges::any_of(
        rest, [](char character) { return static_cast<unsigned char>(character) > ' '; });
}

// Where the content of the area begins: behind the body's tag or, without one, the card's.
std::size_t contentBegin(EditedText& text)
{
    for (const auto& key : {kBody, kCard}) {
        const auto at = text.find(key);
        const auto behind = at == npos ? npos : text.tagEnd(at);
        if (behind != npos) return behind;
    }
    return 0;
}

} // namespace

void closeLastParagraph(EditedText& text)
{
    const auto lastEnd = text.findLast(kParagraphEnd);
    auto at = text.find(kParagraph, lastEnd == npos ? 0 : lastEnd);
    for (; at != npos; at = text.find(kParagraph, at + 1)) {
        if (text.find(kParagraphEnd, at + 1) != npos) continue; // since one was closed
        const auto cardEnd = text.find(kCardEnd);
        if (cardEnd == npos) return;
        text.insert(cardEnd, kNewParagraphEnd);
        if (cardEnd < at) at += kNewParagraphEnd.size();
    }
}

void ensureParagraph(EditedText& text)
{
    const auto cardEnd = text.find(kCardEnd);
    if (cardEnd == npos || text.find(kParagraph) != npos) return;
    const auto begin = contentBegin(text);
    const auto end = std::min(text.find(kDo, begin), cardEnd);
    if (begin <= end && hasLooseText(text.copy(begin, end))) {
        text.insert(end, kNewParagraphEnd);
        text.insert(begin, kNewParagraph);
    } else {
        text.insert(cardEnd, "<p></p>");
    }
}

void wrapTrailingText(EditedText& text)
{
    const auto cardEnd = text.find(kCardEnd);
    if (cardEnd == npos) return;
    const auto last = text.findLast(kParagraphEnd, cardEnd);
    if (last == npos) return;
    const auto whole = text.whole();
    const auto behindLast = whole.find('>', last) + 1;
    for (auto at = behindLast - 1; at < cardEnd; at = whole.find('>', at + 1)) {
        // A single character does not count, as the blank in "</p> <!--/card-->".
        if (whole.find('<', at) - at <= 2) continue;
        text.insert(cardEnd, kNewParagraphEnd);
        text.insert(behindLast, kNewParagraph);
        return;
    }
}

} // namespace quillmere
