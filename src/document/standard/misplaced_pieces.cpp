// Held by standard_road_test.cpp.

#include "document/standard/misplaced_pieces.h"

#include "document/standard/piece_alignment.h"
#include "document/text/windows1252.h"

namespace quillmere {

namespace {

using Kind = DesignPiece::Kind;

bool isOfList(WmlElement element)
{
    return element == WmlElement::Select || element == WmlElement::OptionGroup
        || element == WmlElement::Option;
}

/// Whether an element that comes into another one goes, and its text stays: "<a>x<b>y</b></a>".
bool dissolvesIn(WmlElement parent, WmlElement element)
{
    const bool isPlain = isOfList(parent) || parent == WmlElement::Link
        || parent == WmlElement::Anchor || parent == WmlElement::Pre;
    const bool mayGo = ruleOf(element).isFormat || element == WmlElement::Link
        || element == WmlElement::LineBreak;
    return isPlain && mayGo && !mayContain(parent, element);
}

/// The element that each piece stands in; Other outside of all.
std::vector<WmlElement> parentsOf(const std::vector<DesignPiece>& pieces)
{
    std::vector<WmlElement> parents;
    std::vector<WmlElement> open;
    for (const auto& piece : pieces) {
        parents.push_back(open.empty() ? WmlElement::Other : open.back());
        if (piece.kind == Kind::Start) open.push_back(piece.element);
        if (piece.kind == Kind::End && !open.empty()) open.pop_back();
    }
    return parents;
}

} // namespace

MisplacedPieces::MisplacedPieces(const CardPieces& card)
    : card_(card)
{
    for (const auto& piece : card_.now) {
        if (piece.element != WmlElement::Other) continue;
        if (piece.kind == Kind::Start) startNames_.insert(lowerCase(piece.name));
        if (piece.kind == Kind::End) endNames_.insert(lowerCase(piece.name));
    }
}

bool MisplacedPieces::dissolves(std::size_t now, const WrittenNesting& written)
{
    const auto& piece = card_.now[now];
    if (piece.kind == Kind::Start || piece.kind == Kind::Single)
        return dissolvesIn(written.parent(), piece.element) && isMoved(now, written.parent());
    return piece.kind == Kind::End && written.isDissolved(piece.element);
}

/// Whether a piece is new where it stands now.
bool MisplacedPieces::isMoved(std::size_t now, WmlElement parent)
{
    const auto kept = card_.places[now];
    const auto then = kept != kNoPiece ? kept : card_.changedFrom[now];
    if (then == kNoPiece) return true;
    if (parents_.empty()) parents_ = parentsOf(card_.then);
    return parents_[then] != parent;
}

bool MisplacedPieces::isForSurface(std::size_t now) const
{
    if (card_.places[now] != kNoPiece || card_.changedFrom[now] != kNoPiece) return false;
    const auto& piece = card_.now[now];
    const bool isBreak = piece.kind == Kind::Single && piece.element == WmlElement::LineBreak;
    const auto& ahead = card_.now[now == 0 ? 0 : now - 1];
    if (isBreak && ahead.kind == Kind::End && ahead.element == WmlElement::Select)
        return card_.places[now - 1] == kNoPiece;
    return piece.element == WmlElement::Other && standsAlone(piece);
}

/// Whether a marker of an element that WML has not lacks its other half.
bool MisplacedPieces::standsAlone(const DesignPiece& piece) const
{
    if (piece.kind == Kind::Start) return !endNames_.contains(lowerCase(piece.name));
    return piece.kind == Kind::End ? !startNames_.contains(lowerCase(piece.name))
                                   : piece.kind == Kind::Single;
}

} // namespace quillmere
