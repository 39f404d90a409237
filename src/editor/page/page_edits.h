#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Edits of an area as changes of its design text. Each tells what to change and changes nothing
// itself; what no splice names stays byte for byte.

namespace quillmere {

/// Text in place of a piece of the text.
struct Splice {
    SourceRange removed;
    std::string inserted;
    friend bool operator==(const Splice&, const Splice&) = default;
};

struct SurfaceEdit {
    std::vector<Splice> splices; ///< by their place, none touching another; empty: nothing to do
    std::size_t caret = 0; ///< offset in the text after the edit
};

/// The text after the edit. Throws Overflow where it is longer than the rules allow.
[[nodiscard]] std::string edited(
    std::string_view text, const SurfaceEdit& edit, const OutputRules& rules = OutputRules());

/// The edit that takes `edit` back, for the text as it was ahead of it. The caret is that of
/// before.
[[nodiscard]] SurfaceEdit reverse(
    std::string_view textBefore, const SurfaceEdit& edit, std::size_t caretBefore);

/// Puts typed text in place of what lies between two places (the same place: nothing). The text is
/// escaped; a hard blank becomes &nbsp;, a line end <br/>, a character that Windows-1252 has not a
/// decimal reference. A blank that would not be seen, next to white space or where a line begins,
/// becomes &nbsp; as well. In a line of atoms (PageBlock::isAside) it comes as a paragraph behind
/// them. Where nothing is lost a line end in an entry of a list, which holds none, is a blank.
[[nodiscard]] SurfaceEdit typeText(
    const SurfacePage& page, PagePlace from, PagePlace to, std::u16string_view typed);

/// Puts markup in place of what lies between two places, as it is; where nothing is lost made to
/// fit the place (fitting_markup.h).
[[nodiscard]] SurfaceEdit pasteMarkup(
    const SurfacePage& page, PagePlace from, PagePlace to, std::string_view markup);

/// Takes out what lies between two places:
/// - items with their source; an element goes where all that it shows goes, and where both of its
///   tags lie between the places; else its tags stay, so that no half of a pair is lost;
/// - one end of a group that is shown takes the other one with it;
/// - where nothing is lost, markers that show nothing go only from between items;
/// - a line of atoms and a paragraph do not become one;
/// - a radio button takes its whole option with it, and the last option its list;
/// - over the border of two blocks they become one: the first block's paragraph goes on; where
///   nothing is lost not over the border of another element;
/// - a table goes where both places lie outside of it; where one lies within it, the covered cells
///   are emptied and the table stays.
[[nodiscard]] SurfaceEdit deleteRange(const SurfacePage& page, PagePlace from, PagePlace to);

/// What Backspace and Delete take: one item, or the border to the neighbouring block of the same
/// cell; nothing at the start and end of a cell and of the page, and next to a table.
[[nodiscard]] SurfaceEdit deleteBackward(const SurfacePage& page, PagePlace caret);
[[nodiscard]] SurfaceEdit deleteForward(const SurfacePage& page, PagePlace caret);

/// Takes b, strong, i, em, u, big and small from the text between two places. A format that reaches
/// beyond them is closed ahead of the first place and opened again behind the second. Where nothing
/// is lost, a link that is cut by a place counts as a whole.
[[nodiscard]] SurfaceEdit removeFormats(const SurfacePage& page, PagePlace from, PagePlace to);

/// What lies between two places as markup that can stand alone: elements that are cut by a place
/// are completed with their own tags; frames, cells and paragraphs that are cut are left out.
[[nodiscard]] std::string markupBetween(const SurfacePage& page, PagePlace from, PagePlace to);

/// What lies between two places as plain text: line ends for breaks and blocks, tabs between cells,
/// the alternative text for pictures, nothing for radio buttons and chips.
[[nodiscard]] std::u16string textBetween(const SurfacePage& page, PagePlace from, PagePlace to);

} // namespace quillmere
