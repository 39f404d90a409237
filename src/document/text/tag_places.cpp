// What a deletion joins was parted by deleted tags only, so it shows as well when all are deleted.
// Held by corrections_test.cpp.

#include "document/text/tag_places.h"

#include "document/text/character_walk.h"
#include "document/text/text_search.h"

#include <array>
#include <string>
#include <utility>

namespace quillmere {
namespace {

constexpr std::size_t kUsualTags = 32; // of the keys in one text, at most

/// What tags are first told apart by: their first letter, with a bit of its own for an end's.
/// Setting one bit makes a capital small.
std::size_t initial(char first, char second)
{
    constexpr unsigned kSmall = 0x20;
    if (first == '/') return (static_cast<unsigned char>(second) | kSmall) + 0x100U;
    return static_cast<unsigned char>(first) | kSmall;
}

std::size_t initialAt(std::string_view text, std::size_t tag)
{
    const auto at = [text](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
    return initial(at(tag + 1), at(tag + 2));
}

/// The keys by their initials. There are no more than fit a number.
class KeyTable {
public:
    explicit KeyTable(std::span<const std::string_view> keys)
        : next_(keys.size())
    {
        for (auto i = keys.size(); i-- > 0;)
            next_[i] = std::exchange(first_[initialAt(keys[i], 0)], static_cast<Number>(i + 1));
    }
    /// The first key with this initial, counted from 1; 0 where there is none.
    [[nodiscard]] std::size_t first(std::size_t initial) const { return first_[initial]; }
    [[nodiscard]] std::size_t behind(std::size_t number) const { return next_[number - 1]; }

private:
    using Number = std::uint8_t;
    std::array<Number, 0x200> first_{};
    std::vector<Number> next_;
};

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
    const KeyTable table(keys);
    std::vector<FoundTag> found;
    found.reserve(kUsualTags);
    CharacterWalk openings(text, '<');
    for (auto at = openings.next(); at != npos; at = openings.next()) {
        auto number = table.first(initialAt(text, at)); // most tags have another one
        for (; number != 0; number = table.behind(number)) {
            if (standsAt(text, at, keys[number - 1]))
                found.push_back(
                    {static_cast<TagOffset>(at), static_cast<std::uint16_t>(number - 1)});
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
