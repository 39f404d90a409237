// Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/open_elements.h"

#include <algorithm>

namespace quillmere::wml {

OpenElements::OpenElements()
{
    elements_.emplace_back();
    holders_.push_back(0);
    barriers_.push_back(0);
}

void OpenElements::push(const OpenElement& element)
{
    const auto position = elements_.size();
    elements_.push_back(element);
    if (element.number >= places_.size()) places_.resize(element.number + 1);
    places_[element.number].push_back(position);
    if (element.isFormat()) return;
    holders_.push_back(position);
    if (!element.isLoose()) barriers_.push_back(position);
}

void OpenElements::pop()
{
    const OpenElement& element = elements_.back();
    places_[element.number].pop_back();
    if (!element.isFormat()) {
        holders_.pop_back();
        if (!element.isLoose()) barriers_.pop_back();
    }
    elements_.pop_back();
}

std::size_t OpenElements::holderAhead(std::size_t position) const
{
    const auto found = std::lower_bound(holders_.begin(), holders_.end(), position);
    return found == holders_.begin() ? 0 : *(found - 1);
}

std::optional<std::size_t> OpenElements::last(std::uint32_t number) const
{
    if (number >= places_.size() || places_[number].empty()) return std::nullopt;
    return places_[number].back();
}

} // namespace quillmere::wml
