// What a deletion joins was parted by deleted tags only, so it shows as well when all are deleted.
// Held by corrections_test.cpp and corrections_test.cpp.

#include "document/text/tag_places.h"

#include "document/text/text_search.h"

#include <bitset>
#include <string>

namespace quillmere {
namespace {

constexpr std::size_t kUsualTags = 32; // of the keys in one text, at most
constexpr std::size_t kInitials = 0x200;

/// The first letter of the tag that `tag` begins with, with a bit of its own for an end's.
std::size_t initial(std::string_view tag)
{
    const std::size_t at = tag.size() > 2 && tag[1] == '/' ? 2 : 1;
    if (at >= tag.size()) return 0;
    // Setting this bit makes a capital small.
    return (static_cast<unsigned char>(tag[at]) | 0x20U) + (at - 1) * 0x100;
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

std::vector<FoundTag> findTags(std::string_view text, std::span<const std::string_view> keys)
{
    std::bitset<kInitials> initials; // of the keys: most tags have another one
    for (const std::string_view key : keys)
        initials[initial(key)] = true;
    std::vector<FoundTag> found;
    found.reserve(kUsualTags);
    for (auto at = text.find('<'); at != npos; at = text.find('<', at + 1)) {
        const auto itsInitial = initial(text.substr(at, 3));
        if (!initials[itsInitial]) continue;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (initial(keys[i]) == itsInitial && standsAt(text, at, keys[i]))
                found.push_back({static_cast<TagOffset>(at), static_cast<std::uint16_t>(i)});
        }
    }
    return found;
}

std::vector<Places> tagPlaces(std::string_view text, std::span<const std::string_view> keys)
{
    const auto found = findTags(text, keys);
    std::vector<std::size_t> counts(keys.size());
    for (const FoundTag& tag : found)
        ++counts[tag.key];
    std::vector<Places> places(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i)
        places[i].reserve(counts[i]);
    for (const FoundTag& tag : found)
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
