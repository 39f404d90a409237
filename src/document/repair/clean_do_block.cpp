// The do block travels as comment markers that a person can half delete on the surface. What is
// left of it is cut from its first marker through the last one that still stands.
// Held by clean_passes_test.cpp.

#include "document/repair/clean_do_block.h"

namespace quillmere {
namespace {

constexpr SearchKey kDo = "<!--do";
constexpr SearchKey kDoEnd = "<!--/do";
constexpr SearchKey kGo = "<!--go";

void cutThroughTag(EditedText& text, std::size_t begin, std::size_t lastTag)
{
    const auto end = text.tagEnd(lastTag);
    if (end != npos) text.cut(begin, end);
}

} // namespace

void dropBrokenDoBlock(EditedText& text)
{
    const auto block = text.find(kDo);
    const auto target = text.find(kGo, block == npos ? 0 : block + 1);
    const auto begin = block == npos ? target : block;
    const auto end = text.find(kDoEnd, begin == npos ? 0 : begin + 1);
    if (block != npos && target != npos && end != npos) return;

    if (begin == npos) {
        if (end != npos) text.cutTag(end);
    } else if (end != npos) {
        cutThroughTag(text, begin, end);
    } else {
        cutThroughTag(text, begin, target == npos ? begin : target);
    }
}

void closeCard(EditedText& text)
{
    constexpr std::string_view kCardEnd = "<!--/card-->";
    const auto begin = text.find(kDo);
    const bool hasEnd = begin != npos && text.find(kDoEnd, begin + 1) != npos;
    const auto end = hasEnd ? text.tagEnd(text.findLast(kDoEnd)) : npos;
    if (end == npos) return text.insert(text.size(), kCardEnd);
    text.insert(text.size(), text.copy(begin, end).append(kCardEnd));
    text.cut(begin, end);
}

} // namespace quillmere
