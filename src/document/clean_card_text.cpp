// How text that stands in no paragraph gets one; the card's end marker stands already, behind the
// do block. Held by clean_passes_test.cpp.

#include "document/clean_paragraphs.h"

#include <algorithm>

namespace quillmere {
namespace {

    constexpr std::string_view kCard = "<!--card";
    constexpr std::string_view kCardEnd = "<!--/card";
    constexpr std::string_view kBody = "<body";
    constexpr std::string_view kDo = "<!--do";
    constexpr std::string_view kParagraph = "<p";
    constexpr std::string_view kParagraphEnd = "</p";
    constexpr std::string_view kNewParagraph = "<p>";
    constexpr std::string_view kNewParagraphEnd = "</p>";

    struct Pair {
        std::string_view begin;
        std::string_view end;
    };
    constexpr Pair kWithOwnText[] = { { "<table", "</table" }, { "<!--select", "<!--/select" } };

    // Behind a table or list that begins at `tag`; `tag` where neither does.
    std::size_t skipTableOrList(EditedText& text, std::size_t tag)
    {
        for (const auto& [begin, end] : kWithOwnText) {
            if (text.find(begin, tag, tag + 1) == tag) return text.find(end, tag);
        }
        return tag;
    }

    bool hasOnlyBlanks(const EditedText& text, std::size_t begin, std::size_t end)
    {
        for (auto at = begin; at < end; ++at) {
            if (text[at] != ' ') return false;
        }
        return true;
    }

    bool hasLooseText(EditedText& text, std::size_t begin, std::size_t end)
    {
        for (auto at = begin; at < end;) {
            const auto tag = std::min(text.find("<", at), end);
            if (!hasOnlyBlanks(text, at, tag)) return true;
            if (tag == end) return false;
            at = text.tagEnd(skipTableOrList(text, tag));
        }
        return false;
    }

    // Where the content of the area begins: behind the body's tag or, without one, the card's.
    std::size_t contentBegin(EditedText& text)
    {
        for (const auto key : { kBody, kCard }) {
            const auto at = text.find(key);
            const auto behind = at == npos ? npos : text.tagEnd(at);
            if (behind != npos) return behind;
        }
        return 0;
    }

} // namespace

void closeLastParagraph(EditedText& text)
{
    for (auto at = text.find(kParagraph); at != npos; at = text.find(kParagraph, at + 1)) {
        if (text.find(kParagraphEnd, at + 1) != npos) continue;
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
    const auto end = std::min(text.find(kDo, begin), text.find(kCardEnd, begin));
    if (end != npos && hasLooseText(text, begin, end)) {
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
    const auto behindLast = text.tagEnd(last);
    for (auto at = text.find(">", last); at < cardEnd; at = text.find(">", at + 1)) {
        // A single character does not count, as the blank in "</p> <!--/card-->".
        if (text.find("<", at) - at <= 2) continue;
        text.insert(cardEnd, kNewParagraphEnd);
        text.insert(behindLast, kNewParagraph);
        return;
    }
}

} // namespace quillmere
