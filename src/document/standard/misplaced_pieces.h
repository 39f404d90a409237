#pragma once

#include "document/standard/card_pieces.h"
#include "document/standard/written_nesting.h"

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace quillmere {

/// Tells which pieces of a changed card are not to be written where they stand now.
class MisplacedPieces {
public:
    /// `card` must outlive it.
    explicit MisplacedPieces(const CardPieces& card);

    /// Whether a tag goes and what it holds stays: it was put where its element may not stand, or
    /// is the end of one that went. `written` is what is open ahead of it.
    [[nodiscard]] bool dissolves(std::size_t now, const WrittenNesting& written);
    /// Whether a new piece is there for the surface alone: what it or a dialog puts in for its own
    /// sake, such as a comment, or a break behind a new list.
    [[nodiscard]] bool isForSurface(std::size_t now) const;

private:
    [[nodiscard]] bool isMoved(std::size_t now, WmlElement parent);
    [[nodiscard]] bool standsAlone(const DesignPiece& piece) const;

    const CardPieces& card_;
    std::vector<WmlElement> parents_; ///< of the pieces of `then`, once they are asked for
    std::set<std::string> startNames_; ///< of elements that WML has not
    std::set<std::string> endNames_;
};

} // namespace quillmere
