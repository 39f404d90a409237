// A deck of hundreds of pictures is asked for hundreds of tags, so that the entries lie in a map.
// Held by image_conversion_test.cpp.

#include "document/picture_entries.h"

#include "document/text/windows1252.h"

#include <utility>

namespace quillmere {

DisplayCopyIndex::DisplayCopyIndex(const Deck& deck)
    : deck_(deck)
{
}

const std::vector<PicturePlace>& DisplayCopyIndex::find(std::string_view displayPath)
{
    static const std::vector<PicturePlace> kNone;
    if (!read_) readDeck();
    const auto found = places_.find(lowerCase(displayPath));
    return found == places_.end() ? kNone : found->second;
}

void DisplayCopyIndex::readDeck()
{
    read_ = true;
    for (std::size_t area = 0; area < areaCount(deck_); ++area)
        readArea(area);
}

void DisplayCopyIndex::readArea(std::size_t area)
{
    const auto& images = deck_[area].images;
    for (std::size_t entry = 0; entry + 1 < images.size(); ++entry) {
        const auto path = lowerCase(images[entry].displayDir + images[entry].displayFile);
        if (path.empty()) continue;
        auto& places = places_[path];
        if (places.empty() || places.back().area != area) places.push_back({area, entry});
    }
}

PictureEdits::PictureEdits(Deck& deck)
    : deck_(deck)
{
}

ImageEntry& PictureEdits::at(const PicturePlace& place)
{
    const auto known = edited_.find(place);
    if (known != edited_.end()) return known->second;
    return edited_.emplace(place, deck_[place.area].images[place.entry]).first->second;
}

void PictureEdits::commit()
{
    for (auto& [place, entry] : edited_)
        deck_[place.area].images[place.entry] = std::move(entry);
    edited_.clear();
}

} // namespace quillmere
