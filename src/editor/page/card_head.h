#pragma once

#include "document/wml/wml_elements.h"
#include "editor/page/surface_page.h"

#include <cstddef>
#include <span>

namespace quillmere {

/// Whether an element belongs to a card's head.
[[nodiscard]] constexpr bool isOfHead(WmlElement element)
{
    return element == WmlElement::OnEvent || element == WmlElement::Timer;
}

/// What a card begins with.
struct CardHead {
    std::size_t eventsEnd = 0; ///< offset behind its last onevent, or where its content begins
    std::size_t end = 0; ///< behind its events and its timer
    bool hasTimer = false;
};

/// The head of a page's card. A timer counts wherever it stands, but not in pieces that are
/// `going`.
[[nodiscard]] CardHead headOf(const SurfacePage& page, std::span<const SourceRange> going = {});

} // namespace quillmere
