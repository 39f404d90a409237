// Options and their lists are pairs of comment markers; either one of a pair may have been deleted
// on the surface, and text may have been moved in or out. Held by clean_passes_test.cpp.

#include "document/repair/clean_options.h"

#include "document/text/failure.h"

#include <algorithm>

namespace quillmere {
namespace {

constexpr SearchKey kOption = "<!--option";
constexpr SearchKey kOptionEnd = "<!--/option";
constexpr SearchKey kSelect = "<!--select";
constexpr SearchKey kSelectEnd = "<!--/select";
constexpr SearchKey kRadioButton = "<input";

constexpr std::string_view kNewOptionEnd = "<!--/option-->";

// A lone option ends ahead of the next tag, but a radio button belongs to its text.
void endLoneOption(EditedText& text, std::size_t option)
{
    auto behind = text.tagEnd(option);
    if (behind == npos) return;
    auto tag = text.find("<", behind);
    while (tag != npos && text.find(kRadioButton, tag, tag + 1) == tag) {
        behind = text.tagEnd(tag);
        tag = behind == npos ? npos : text.find("<", behind);
    }
    text.insert(std::min(tag, text.size()), kNewOptionEnd);
}

void completeOption(EditedText& text, std::size_t option)
{
    const auto end = text.find(kOptionEnd, option + 1);
    const auto next = text.find(kOption, option + 1);
    const auto listEnd = text.find(kSelectEnd, option + 1);
    if (end < next) return;
    if (end != npos) {
        if (listEnd == npos) throw InvalidArgument();
        text.insert(std::min(next, listEnd), kNewOptionEnd);
    } else if (next == npos && listEnd != npos) {
        text.insert(listEnd, kNewOptionEnd);
    } else if (next == npos) {
        endLoneOption(text, option);
    }
    // An option without any end behind it that another one follows stays as it is, as the
    // first one of "<!--option-->a<!--option-->b<!--/select-->" does.
}

} // namespace

void dropEarlyOptionEnds(EditedText& text)
{
    for (auto at = text.find(kOptionEnd); at < text.find(kOption); at = text.find(kOptionEnd)) {
        if (text.cutTag(at) == 0) return;
    }
}

void completeOptions(EditedText& text)
{
    auto last = npos;
    for (auto at = text.find(kOption); at != npos; at = text.find(kOption, at + 1)) {
        completeOption(text, at);
        last = at;
    }
    if (last == npos) return;
    const auto itsEnd = text.find(kOptionEnd, last + 1);
    if (itsEnd != npos) text.cutEveryTag(kOptionEnd, itsEnd + 1);
}

void openSelect(EditedText& text)
{
    const auto option = text.find(kOption);
    if (option != npos && text.find(kSelect) == npos) text.insert(option, "<!--select-->");
}

void closeSelect(EditedText& text)
{
    if (text.find(kOptionEnd) == npos || text.find(kSelectEnd) != npos) return;
    const auto end = text.tagEnd(text.findLast(kOptionEnd));
    if (end != npos) text.insert(end, "<!--/select-->");
}

void dropEmptySelects(EditedText& text)
{
    if (text.find(kSelect) == npos || text.find(kOption) != npos) return;
    text.cutEveryTag(kSelect);
    text.cutEveryTag(kSelectEnd);
}

} // namespace quillmere
