// Held by fitting_markup_test.cpp.

#include "editor/page/open_levels.h"

#include <utility>

namespace quillmere {

namespace {

using E = WmlElement;

} // namespace

OpenLevels::OpenLevels(const SurfacePage& page, const std::vector<std::size_t>& round)
    : levels_(1)
{
    for (const auto index : round) {
        const auto& element = page.elements[index];
        const auto name = wmlElement(tagName(element.start.in(page.text)));
        if (name == E::Other || name == E::Card) continue;
        Level level{.element = name, .parent = top()};
        level.start = element.start;
        level.end = element.end;
        levels_.push_back(std::move(level));
    }
}

Level OpenLevels::close()
{
    auto closed = std::move(levels_.back());
    levels_.pop_back();
    return closed;
}

bool OpenLevels::isWithin(std::size_t level, E element) const
{
    while (level != kNone && levels_[level].element != element)
        level = levels_[level].parent;
    return level != kNone;
}

bool OpenLevels::holdsText(std::size_t level) const
{
    const auto element = levels_[level].element;
    return element == E::Card || ruleOf(element).holdsText;
}

bool OpenLevels::mayStand(std::size_t level, E element) const
{
    if (element == E::Table && isWithin(level, E::Cell)) return false;
    const auto parent = levels_[level].element;
    return mayContain(parent, element) || (parent == E::Card && mayContain(E::Paragraph, element));
}

std::optional<MarkupPlace> OpenLevels::placeFor(E element) const
{
    MarkupPlace place{top(), kNone};
    while (!mayStand(place.level, element)) {
        place = {levels_[place.level].parent, place.level};
        if (place.level == kNone) return std::nullopt;
    }
    return place;
}

std::size_t OpenLevels::closedToText() const
{
    auto level = top();
    while (!holdsText(levels_[level].parent))
        level = levels_[level].parent;
    return level;
}

} // namespace quillmere
