// The pieces of the card as it is are written one after the other. Each is first held against what
// is open by then (WrittenNesting): it may have to go (MisplacedPieces), or what is new in it may
// have to stand elsewhere (NewContent); else it is written (PieceWriter). Held by
// standard_road_test.cpp.

#include "document/standard/card_changes.h"

#include "document/standard/misplaced_pieces.h"
#include "document/standard/new_content.h"
#include "document/standard/piece_alignment.h"
#include "document/standard/piece_writer.h"

namespace quillmere {

namespace {

void writePieces(const DeckOfCards& deck, const CardPieces& card, TokenWriter& result)
{
    WrittenNesting written;
    MisplacedPieces misplaced(card);
    NewContent added(result);
    PieceWriter writer(deck, card, {result, added});
    for (std::size_t i = 0; i < card.now.size(); ++i) {
        const auto& piece = card.now[i];
        added.prepareFor(piece, card.places[i] == kNoPiece, written);
        if (i + 1 == card.now.size()) added.endAction();
        const bool dissolves = misplaced.dissolves(i, written);
        if (dissolves)
            writer.writeDissolved(i);
        else if (!misplaced.isForSurface(i))
            writer.write(i);
        written.follow(piece, dissolves);
        if (piece.kind == DesignPiece::Kind::End && !written.isInAction()) added.endAction();
    }
}

} // namespace

bool writeCard(
    const DeckOfCards& deck, const OpenedCard* opened, std::string_view design, TokenWriter& result)
{
    const auto card = compareCard(opened, design);
    writePieces(deck, card, result);
    return opened == nullptr || !isUnchanged(card);
}

} // namespace quillmere
