// What is asked of all open elements is kept with each as it opens. Held by standard_road_test.cpp.

#include "document/standard/written_nesting.h"

namespace quillmere {

namespace {

std::size_t indexOf(WmlElement element)
{
    return static_cast<std::size_t>(element);
}

} // namespace

bool isAction(WmlElement element)
{
    return element == WmlElement::Do || element == WmlElement::Go;
}

void WrittenNesting::follow(const DesignPiece& piece, bool isDissolved)
{
    if (piece.kind == DesignPiece::Kind::Start) open(piece.element, isDissolved);
    if (piece.kind == DesignPiece::Kind::End && isOpen(piece.element)) close(piece.element);
}

void WrittenNesting::open(WmlElement element, bool isDissolved)
{
    if (places_.size() <= indexOf(element)) places_.resize(indexOf(element) + 1);
    places_[indexOf(element)].push_back(open_.size());
    open_.push_back({element, isDissolved, isDissolved ? parent() : element,
        isInAction() || isAction(element)});
}

void WrittenNesting::close(WmlElement element)
{
    const auto place = places_[indexOf(element)].back();
    while (open_.size() > place) {
        places_[indexOf(open_.back().element)].pop_back();
        open_.pop_back();
    }
}

WmlElement WrittenNesting::parent() const
{
    return open_.empty() ? WmlElement::Other : open_.back().parent;
}

bool WrittenNesting::isDissolved(WmlElement element) const
{
    return isOpen(element) && open_[places_[indexOf(element)].back()].isDissolved;
}

bool WrittenNesting::isOpen(WmlElement element) const
{
    return indexOf(element) < places_.size() && !places_[indexOf(element)].empty();
}

} // namespace quillmere
