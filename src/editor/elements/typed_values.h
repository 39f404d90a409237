#pragma once

#include <string>
#include <string_view>

// What a person types into a dialog as it stands in the design text, and back. Typed text means
// itself: "A & B <c>" is shown with these very characters. A "$" stays, so that a WML variable such
// as $(name) can be typed. A character that Windows-1252 has not becomes a decimal reference.

namespace quillmere {

/// As text of an element: & < > are escaped, a blank that would not be seen becomes &nbsp;.
[[nodiscard]] std::string captionMarkup(std::u16string_view typed);
/// As the value of an attribute between double quotes: the quote is escaped as well.
[[nodiscard]] std::string valueMarkup(std::u16string_view typed);

/// What a person sees for text or a value. A reference without its semicolon is no reference here,
/// for "a.wml?x=1&copy=2" stands in older files.
[[nodiscard]] std::u16string typedFrom(std::string_view markup);

} // namespace quillmere
