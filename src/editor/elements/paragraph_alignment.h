#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <string>
#include <string_view>

// The alignment of lines, as paragraph tags in a design text.

namespace quillmere {

/// "<p>", "<p align="center">" or "<p align="right">".
[[nodiscard]] std::string_view paragraphTag(Alignment alignment);

/// The alignment of the paragraph in which what is marked begins; Left outside of paragraphs.
[[nodiscard]] Alignment alignmentOf(
    std::string_view text, SourceRange marked, const OutputRules& rules = OutputRules());

/// Whether no line that is marked can be aligned: preformatted text has no alignment in WML, and
/// atoms outside of paragraphs are no text.
[[nodiscard]] bool takesNoAlignment(
    std::string_view text, SourceRange marked, const OutputRules& rules = OutputRules());

/// Whether a picture stands in the lines that are marked, or in the line of the caret.
[[nodiscard]] bool holdsPicture(
    std::string_view text, SourceRange marked, const OutputRules& rules = OutputRules());

struct AlignedText {
    std::string text;
    SourceRange marked; ///< what was marked, in it
};

/// Aligns the lines that are marked, or the line of the caret, where nothing is. A line ends at a
/// <br> or at the border of a paragraph; a table is a line of its own, and one that is marked in
/// part is aligned as a whole. A <br> within a link, a selection list or a table ends no line. What
/// cannot be aligned stays as it is.
/// - Lines that are a part of their paragraph are cut out of it; the <br> at the cut goes, since
///   the border of the paragraphs takes its place. Formats are ended ahead of a cut and begun again
///   behind it.
/// - A line outside of paragraphs gets one of its own unless it is to stand at the left.
/// - By the default a paragraph that comes to stand at the left beside another one there is joined
///   to it with a <br/>, for saving would make one paragraph of both with nothing between them. So
///   what was cut out and is set back to the left is again what it was.
/// - Where nothing is lost paragraphs stay apart and keep their other attributes; of a paragraph
///   that is cut the first part keeps its id.
/// Throws Overflow.
[[nodiscard]] AlignedText alignLines(std::string_view text, SourceRange marked, Alignment alignment,
    const OutputRules& rules = OutputRules());

/// What ends the paragraph `paragraph` (an element of the page) at an offset and begins the next
/// one with the tag `opening`: the ends of the formats that are open in it there, "</p>", the tag,
/// and the formats again. For no paragraph (kNone) there is no "</p>".
[[nodiscard]] std::string CloseOpenParagraphs(
    const SurfacePage& page, std::size_t paragraph, std::size_t offset, std::string_view opening);

} // namespace quillmere
