// One stack for each name, the names of a deck by their number, all others in a map. Held by
// surface_page_test.cpp.

#include "editor/page/marker_pairs.h"

#include <algorithm>
#include <array>
#include <map>

namespace quillmere {

namespace {

using Stack = std::vector<std::uint32_t>; // indices of start markers without an end so far

char loweredLetter(char letter)
{
    return static_cast<char>(static_cast<unsigned char>(letter) | 0x20U);
}

struct LessIgnoringCase {
    bool operator()(std::string_view left, std::string_view right) const
    {
        return std::ranges::lexicographical_compare(left, right, {}, loweredLetter, loweredLetter);
    }
};

class OpenMarkers {
public:
    explicit OpenMarkers(std::string_view text)
        : text_(text)
    {
    }
    Stack& of(const MarkupTag& tag)
    {
        if (tag.name == TagName::OtherMarker) return others_[markerName(tag.source.in(text_))];
        return known_[static_cast<std::size_t>(tag.name) - static_cast<std::size_t>(TagName::Card)];
    }

private:
    static constexpr auto kKnown
        = static_cast<std::size_t>(TagName::OtherMarker) - static_cast<std::size_t>(TagName::Card);
    std::string_view text_;
    std::array<Stack, kKnown> known_;
    std::map<std::string_view, Stack, LessIgnoringCase> others_;
};

} // namespace

void pairMarkers(std::string_view text, std::vector<MarkupTag>& tags)
{
    OpenMarkers open(text);
    for (std::uint32_t index = 0; index < tags.size(); ++index) {
        if (tags[index].name < TagName::Card) continue;
        Stack& starts = open.of(tags[index]);
        if (!tags[index].isEnd)
            starts.push_back(index);
        else if (!starts.empty()) {
            tags[starts.back()].partner = index;
            tags[index].partner = starts.back();
            starts.pop_back();
        }
    }
}

} // namespace quillmere
