// What a deletion joins was parted by deleted tags only, so it shows as well when all are deleted.
// Held by format_nesting_test.cpp and format_around_select_test.cpp.

#include "document/tag_places.h"

#include "document/text_search.h"

#include <string>

namespace quillmere {
namespace {

std::string withoutTags(std::string_view text, std::span<const std::string_view> tags)
{
    Rewriter rewriter(text);
    for (auto at = text.find('<'); at != npos; at = text.find('<', at + 1)) {
        for (const std::string_view tag : tags) {
            if (standsAt(text, at, tag)) rewriter.drop(at, at + tag.size());
        }
    }
    return rewriter.take();
}

} // namespace

std::vector<FoundTag> findTags(std::string_view text, std::span<const std::string_view> keys)
{
    std::vector<FoundTag> found;
    for (auto at = text.find('<'); at != npos && at + 1 < text.size();
         at = text.find('<', at + 1)) {
        // Setting this bit makes a capital small and leaves '/' and '!' as they are.
        const auto second = static_cast<char>(text[at + 1] | 0x20);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (keys[i][1] == second && standsAt(text, at, keys[i]))
                found.push_back({static_cast<TagOffset>(at), static_cast<std::uint16_t>(i)});
        }
    }
    return found;
}

std::vector<Places> tagPlaces(std::string_view text, std::span<const std::string_view> keys)
{
    std::vector<Places> places(keys.size());
    for (const FoundTag& tag : findTags(text, keys))
        places[tag.key].push_back(tag.offset);
    return places;
}

bool cutsCanJoin(std::string_view text, std::span<const std::string_view> cut,
    std::span<const std::string_view> others)
{
    const std::string rest = withoutTags(text, cut);
    return !findTags(rest, cut).empty()
        || findTags(rest, others).size() != findTags(text, others).size();
}

} // namespace quillmere
