// Events stand ahead of all else in a card, with nothing but comments between them. Held by
// fitting_markup_test.cpp.

#include "editor/page/card_head.h"

#include "editor/page/clip_tags.h"
#include "editor/page/going_tags.h"

#include <algorithm>

namespace quillmere {

namespace {

bool isBlank(std::string_view text)
{
    return std::ranges::all_of(text, isWhite);
}

} // namespace

CardHead headOf(const SurfacePage& page, std::span<const SourceRange> going)
{
    CardHead head{page.content.begin, page.content.begin};
    bool isHead = true;
    std::size_t read = page.content.begin;
    const auto content = std::string_view(page.text).substr(0, page.content.end);
    for (const auto& [tag, element] : readClipTags(content)) {
        if (tag.source.begin < read) continue;
        isHead = isHead && tag.name == TagName::Atom
            && isBlank(content.substr(read, tag.source.begin - read))
            && (isOfHead(element) || element == WmlElement::Other);
        read = tag.source.end;
        if (isHead && isOfHead(element)) head.end = read;
        if (isHead && element == WmlElement::OnEvent) head.eventsEnd = read;
        const bool isTimer = tag.name == TagName::Atom && element == WmlElement::Timer;
        const auto source = tag.source;
        head.hasTimer |= isTimer && std::ranges::none_of(going, [source](SourceRange piece) {
            return lies(source, piece);
        });
    }
    return head;
}

} // namespace quillmere
