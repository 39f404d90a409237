// What is cut here always ends at a '<', so each '<' looks back over the blanks in front of it.
// Held by clean_passes_test.cpp.

#include "document/repair/clean_blanks.h"

#include "document/text/character_walk.h"
#include "document/text/text_cutter.h"
#include "document/text/text_search.h"

namespace quillmere {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::size_t skipBlanksBack(std::string_view text, std::size_t end)
{
    while (end > 0 && text[end - 1] == ' ')
        --end;
    return end;
}

// Where what is cut ahead of the '<' at `tag` begins. A line end goes along from between two tags
// and from among blanks: in "a\r\n <" it stays and the blank goes.
std::size_t beginOfCut(std::string_view text, std::size_t tag)
{
    const auto begin = skipBlanksBack(text, tag);
    if (!text.substr(0, begin).ends_with(kLineEnd)) return begin;
    const auto lineEnd = begin - kLineEnd.size();
    const auto beginOfLine = skipBlanksBack(text, lineEnd);
    const bool isBehindTag = beginOfLine > 0 && text[beginOfLine - 1] == '>';
    return isBehindTag || beginOfLine < lineEnd ? beginOfLine : begin;
}

} // namespace

void cutBlanksAheadOfTags(std::string& text)
{
    TextCutter cutter(text);
    CharacterWalk tags(text, '<');
    for (auto tag = tags.nextFrom(1); tag != npos; tag = tags.next()) {
        const bool mayBeBlank = text[tag - 1] == ' ' || text[tag - 1] == kLineEnd.back();
        const auto begin = mayBeBlank ? beginOfCut(text, tag) : tag;
        if (begin == tag) continue;
        cutter.keepTo(begin);
        cutter.dropTo(tag);
    }
}

} // namespace quillmere
