#pragma once

#include "document/wml/wml_elements.h"
#include "editor/page/format_cut.h"
#include "editor/page/surface_page.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What may stand where, by the table of the elements of WML: markup that comes from elsewhere is
// made to fit the place that it is put in at, so that a valid deck stays one.

namespace quillmere {

/// Markup in the form in which it may stand at a place.
struct FittingMarkup {
    /// What goes in at the place, with nothing but tags of formats between its pieces.
    std::vector<PlacedMarkup> here;
    std::vector<PlacedMarkup> elsewhere; ///< what goes in behind elements, and at the card's head
};

/// The elements of the content that hold an offset, as indices, the outermost first.
[[nodiscard]] std::vector<std::size_t> elementsRound(const SurfacePage& page, std::size_t offset);

/// Whether an element may stand within the elements `round`.
[[nodiscard]] bool mayStand(
    const SurfacePage& page, const std::vector<std::size_t>& round, WmlElement element);

/// Markup as it may stand at an offset within the elements `round`. All of its text comes along:
/// - a format or link that may not stand there gives its text, so that a link in a link is text of
///   the outer one; a line break gives a blank; a list in a list gives its entries;
/// - what else may not stand there goes behind the innermost element that it may follow. Formats
///   end ahead of it and begin again behind it instead;
/// - the events and the timer of a card go to its head, a timer only where none stays: the pieces
///   `going` are taken out of the text by the same edit;
/// - rows and cells without their table give their text; tasks without the element that they belong
///   to, and tags without their other half, are left out.
[[nodiscard]] FittingMarkup fittingMarkup(const SurfacePage& page, std::size_t offset,
    const std::vector<std::size_t>& round, std::string_view markup,
    std::span<const SourceRange> going = {});

} // namespace quillmere
