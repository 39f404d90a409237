// What a deletion joins was parted by deleted tags only, so it shows as well when all are deleted.
// Held by format_nesting_test.cpp and format_around_select_test.cpp.

#include "document/tag_places.h"

#include "document/text_search.h"

#include <algorithm>
#include <string>

namespace quillmere {
namespace {

std::size_t totalOf(const std::vector<Places>& places)
{
    std::size_t total = 0;
    for (const Places& each : places)
        total += each.size();
    return total;
}

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

std::vector<Places> tagPlaces(std::string_view text, std::span<const std::string_view> keys)
{
    std::vector<Places> places(keys.size());
    for (auto at = text.find('<'); at != npos && at + 1 < text.size();
         at = text.find('<', at + 1)) {
        // Setting this bit makes a capital small and leaves '/' and '!' as they are.
        const auto second = static_cast<char>(text[at + 1] | 0x20);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (keys[i][1] == second && standsAt(text, at, keys[i])) places[i].push_back(at);
        }
    }
    return places;
}

bool cutsCanJoin(std::string_view text, std::span<const std::string_view> cut,
    std::span<const std::string_view> others)
{
    const std::string rest = withoutTags(text, cut);
    return totalOf(tagPlaces(rest, cut)) != 0
        || totalOf(tagPlaces(rest, others)) != totalOf(tagPlaces(text, others));
}

} // namespace quillmere
