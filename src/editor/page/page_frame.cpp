// Held by surface_page_test.cpp.

#include "editor/page/page_frame.h"

#include <algorithm>

namespace quillmere {

namespace {

using Tags = std::vector<MarkupTag>;

bool isWhiteOnly(std::string_view text)
{
    return std::ranges::all_of(text, isWhite);
}

/// The index behind the last tag of what the tag at `index` begins, where that belongs to a frame
/// without BODY; else `index`.
std::size_t behindFramePart(const Tags& tags, std::size_t index)
{
    const auto name = tags[index].name;
    const bool isSingle
        = name == TagName::Card || name == TagName::Html || name == TagName::Declaration;
    if (isSingle) return index + 1;
    if (name == TagName::Do && tags[index].partner != kNoTag) return tags[index].partner + 1U;
    if (name != TagName::Head) return index;
    const auto isHeadEnd
        = [](const MarkupTag& tag) { return tag.name == TagName::Head && tag.isEnd; };
    const auto end
        = std::find_if(tags.begin() + static_cast<std::ptrdiff_t>(index), tags.end(), isHeadEnd);
    return end == tags.end() ? index : static_cast<std::size_t>(end - tags.begin()) + 1;
}

std::size_t beginWithoutBody(std::string_view text, const Tags& tags)
{
    std::size_t begin = 0;
    for (std::size_t index = 0; index < tags.size();) {
        if (tags[index].isEnd || !isWhiteOnly(text.substr(begin, tags[index].source.begin - begin)))
            break;
        const auto behind = behindFramePart(tags, index);
        if (behind == index) break;
        begin = tags[behind - 1].source.end;
        index = behind;
    }
    return begin;
}

std::size_t beginOf(std::string_view text, const Tags& tags)
{
    const auto body = std::ranges::find_if(
        tags, [](const MarkupTag& tag) { return tag.name == TagName::Body && !tag.isEnd; });
    return body == tags.end() ? beginWithoutBody(text, tags) : body->source.end;
}

bool endsCard(std::string_view text, const MarkupTag& tag)
{
    return tag.name == TagName::Card && tag.isEnd && isWhiteOnly(text.substr(tag.source.end));
}

std::size_t endOf(std::string_view text, const Tags& tags, std::size_t begin)
{
    for (const auto name : {TagName::Body, TagName::Html}) {
        const auto last = std::find_if(tags.rbegin(), tags.rend(),
            [name](const MarkupTag& tag) { return tag.name == name && tag.isEnd; });
        if (last != tags.rend() && last->source.begin >= begin) return last->source.begin;
    }
    if (tags.empty() || tags.back().source.begin < begin) return text.size();
    return endsCard(text, tags.back()) ? tags.back().source.begin : text.size();
}

} // namespace

SourceRange contentOf(std::string_view text, const Tags& tags)
{
    const auto begin = beginOf(text, tags);
    return {begin, endOf(text, tags, begin)};
}

} // namespace quillmere
