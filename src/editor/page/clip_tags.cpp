// One stack of open elements; how many of each are open is counted, so that an end without a start
// costs nothing. Held by fitting_markup_test.cpp.

#include "editor/page/clip_tags.h"

#include "editor/page/atom_marker.h"

#include <cstdint>
#include <unordered_map>

namespace quillmere {

namespace {

WmlElement elementOf(const MarkupTag& tag, std::string_view markup)
{
    const auto written = tag.source.in(markup);
    return wmlElement(tag.name == TagName::Atom ? readAtom(written).name : tagName(written));
}

bool isPictureEnd(const std::vector<ClipTag>& tags, const MarkupTag& tag)
{
    return tag.name == TagName::Picture && tag.isEnd && !tags.empty()
        && tags.back().tag.name == TagName::Picture
        && tags.back().tag.source.end == tag.source.begin;
}

void pair(std::vector<ClipTag>& tags)
{
    std::vector<std::uint32_t> open;
    std::unordered_map<WmlElement, std::size_t> counts;
    for (std::uint32_t i = 0; i < tags.size(); ++i) {
        auto& [tag, element] = tags[i];
        tag.partner = kNoTag;
        if (element == WmlElement::Other || tags[i].isSingle()) continue;
        if (!tag.isEnd) {
            open.push_back(i);
            ++counts[element];
        }
        while (tag.isEnd && tag.partner == kNoTag && counts[element] > 0) {
            const auto start = open.back();
            open.pop_back();
            --counts[tags[start].element];
            if (tags[start].element != element) continue;
            tag.partner = start;
            tags[start].tag.partner = i;
        }
    }
}

} // namespace

std::vector<ClipTag> readClipTags(std::string_view markup)
{
    std::vector<ClipTag> tags;
    MarkupScanner scanner(markup);
    while (const auto tag = scanner.next()) {
        if (isPictureEnd(tags, *tag))
            tags.back().tag.source.end = tag->source.end;
        else
            tags.push_back({*tag, elementOf(*tag, markup)});
    }
    pair(tags);
    return tags;
}

} // namespace quillmere
