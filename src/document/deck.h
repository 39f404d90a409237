#pragma once

#include "document/image_index.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quillmere {

class StandardDeck;
struct OpenedCard;

/// The card that an area was opened from, in a deck that is opened without loss.
struct CardOrigin {
    std::shared_ptr<const StandardDeck> deck; ///< null: the deck goes by the conversions
    std::shared_ptr<const OpenedCard> card; ///< null: a new area
    std::uint32_t index = 0; ///< of the card in its deck
};

/// A picture of an area and its display copy.
struct ImageEntry {
    std::string displayFile; ///< name of the BMP that the surface shows
    std::string displayDir;
    std::string sourceFile; ///< the name as the deck's `src` writes it, with folders: "img/a.wbmp"
    std::string sourceDir; ///< ahead of it: the deck's directory, or that of a path of its own
    std::int32_t pictureHeightPx = 0; ///< the picture's own size, from its header
    std::int32_t pictureWidthPx = 0;
    std::int32_t heightPx = 0; ///< the size used in the card
    std::int32_t widthPx = 0;
    std::string alignment; ///< as the tag of the picture has it, such as "top"
    bool hasLayout = false; ///< `align`, `height`, `width` are written to the deck
};

/// One card of a deck. A directory ends in its separator; a path is directory followed by name. The
/// files of record 0 are those of the deck; the other records may hold copies of the names.
struct DeckRecord {
    std::vector<ImageEntry> images = std::vector<ImageEntry>(2); ///< the last one is a spare
    std::string designFile;
    std::string designDir;
    std::string wmlFile; ///< of record 0 only: the deck as generated
    std::string wmlDir;
    std::string deckFile; ///< the person's own file
    std::string deckDir;
    std::string spareDesignFile; ///< allocated and deleted with the area, never read or written
    std::string spareDesignDir;
    std::string pristineFile; ///< of record 0 only: the deck as opened
    std::string pristineDir;
    std::int16_t imageCursor = 0; ///< index in `images` that the image dialog works on
    bool inUse = false; ///< an area; of record 0 also: a deck is open
    std::int16_t surfaceKind = 0; ///< 0 or 1: which device table sets the page of the areas
    std::vector<std::string> history = std::vector<std::string>(1); ///< at most 16, newest last; a
                                                                    ///< new area has one, empty
    CardOrigin origin; ///< in all records of a deck the same deck
    ImageIndex imageIndex; ///< finds the entries of `images`
};

/// The records of a deck: one for each area and a spare one at the end.
using Deck = std::vector<DeckRecord>;

/// A record for the area behind `preceding`, of the same deck.
[[nodiscard]] inline DeckRecord areaBehind(const DeckRecord& preceding)
{
    DeckRecord area;
    area.inUse = true;
    area.deckFile = preceding.deckFile;
    area.deckDir = preceding.deckDir;
    area.wmlFile = preceding.wmlFile;
    area.wmlDir = preceding.wmlDir;
    area.origin.deck = preceding.origin.deck;
    return area;
}

/// Number of areas: all records but the spare one.
[[nodiscard]] inline std::size_t areaCount(const Deck& deck)
{
    return deck.empty() ? 0 : deck.size() - 1;
}

} // namespace quillmere
