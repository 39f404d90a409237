#pragma once

#include "document/deck.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// The pictures of all areas of a deck, as the way out sees them.

namespace quillmere {

/// Where an entry stands; it holds as long as no area and no picture comes or goes.
struct PicturePlace {
    std::size_t area = 0;
    std::size_t entry = 0;
    [[nodiscard]] bool operator<(const PicturePlace& other) const
    {
        return area != other.area ? area < other.area : entry < other.entry;
    }
};

/// Finds the entries of a deck by the path of their display copy, ignoring case. It reads the deck
/// once, when it is asked first; one index serves all areas of a deck as long as no area and no
/// picture comes or goes. The deck must outlive it.
class DisplayCopyIndex {
public:
    explicit DisplayCopyIndex(const Deck& deck);
    /// For each area that holds the picture its first entry, in the order of the areas. Neither
    /// the spare record nor the spare entry of an area counts.
    [[nodiscard]] const std::vector<PicturePlace>& find(std::string_view displayPath);

private:
    void readDeck();
    void readArea(std::size_t area);

    const Deck& deck_;
    std::unordered_map<std::string, std::vector<PicturePlace>> places_;
    bool read_ = false;
};

/// Changes of pictures that are kept back until all is known to go well.
class PictureEdits {
public:
    explicit PictureEdits(Deck& deck);
    /// The entry as changed so far.
    [[nodiscard]] ImageEntry& at(const PicturePlace& place);
    /// Writes all changes into the deck.
    void commit();

private:
    Deck& deck_;
    std::map<PicturePlace, ImageEntry> edited_;
};

} // namespace quillmere
