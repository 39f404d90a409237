#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// What typed text stands next to.
struct TypedBorders {
    bool blankHidesAhead = false; ///< a line begins, or a blank stands ahead
    bool blankBehind = false; ///< a blank stands behind
    bool takesBreaks = true; ///< else a line end is a blank
};

/// Typed text as markup, and what the surface shows for it: one item for each character.
struct TypedText {
    std::string markup;
    std::u16string shown; ///< U+2028 for a line break
};

/// Text as it is typed or comes from the clipboard as design text: see typeText. A line end is CR,
/// LF, CR LF or the separators of Unicode, a tab is a blank; other controls are left out.
[[nodiscard]] TypedText typedText(std::u16string_view typed, TypedBorders borders);

} // namespace quillmere
