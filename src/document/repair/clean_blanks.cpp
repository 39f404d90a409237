// What is cut here always ends at a '<', so each '<' looks back over the blanks in front of it.
// Held by clean_passes_test.cpp.

#include "document/repair/clean_passes.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

namespace quillmere {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::size_t skipBlanksBack(std::string_view text, std::size_t end)
{
    while (end > 0 && text[end - 1] == ' ')
        --end;
    return end;
}

// Where the blanks ahead of `end` begin, a single line end among them counted in.
std::size_t beginOfBlankText(std::string_view text, std::size_t end)
{
    const auto begin = skipBlanksBack(text, end);
    if (!text.substr(0, begin).ends_with(kLineEnd)) return begin;
    return skipBlanksBack(text, begin - kLineEnd.size());
}

// Cuts from `beginOfCut(text, tag)` up to each '<' at `tag`.
template <typename BeginOfCut> void cutAheadOfTags(std::string& text, BeginOfCut beginOfCut)
{
    Rewriter rewriter(text);
    for (auto tag = text.find('<', 1); tag != npos; tag = text.find('<', tag + 1)) {
        const bool mayBeBlank = text[tag - 1] == ' ' || text[tag - 1] == kLineEnd.back();
        const auto begin = mayBeBlank ? beginOfCut(text, tag) : tag;
        if (begin < tag) rewriter.drop(begin, tag);
    }
    if (rewriter.position() > 0) text = rewriter.take();
}

} // namespace

void cutBlankText(std::string& text)
{
    cutAheadOfTags(text, [](std::string_view source, std::size_t tag) {
        const auto begin = beginOfBlankText(source, tag);
        return begin > 0 && source[begin - 1] == '>' ? begin : tag;
    });
}

void cutBlanksAheadOfTags(std::string& text)
{
    cutAheadOfTags(text, [](std::string_view source, std::size_t tag) {
        const auto begin = beginOfBlankText(source, tag);
        // A line end counts among blanks only: in "a\r\n <" it stays and the blank goes.
        return source[begin] == ' ' ? begin : skipBlanksBack(source, tag);
    });
}

} // namespace quillmere
