#pragma once

#include <cstddef>
#include <string_view>

// What stands in tags that were copied from a page or from a word processor, or that a server was
// to fill: hard blanks, curly quotes, scripts. Each is told in UTF-8 and as one byte.

namespace quillmere::wml {

/// The length of the hard blank at `at`, which is not the text's first character; 0 for none.
[[nodiscard]] std::size_t hardBlankAt(std::string_view text, std::size_t at);

/// A value in curly quotes: `title=“Mein Haus”`.
struct CurlyValue {
    std::string_view value; ///< between them
    std::size_t length = 0; ///< with them; 0 where there is none
};
[[nodiscard]] CurlyValue curlyValueAt(std::string_view text, std::size_t at);

/// The length of the script at `at`: `<%= page %>` or `<?php echo $page ?>`; 0 for none.
[[nodiscard]] std::size_t serverCodeAt(std::string_view text, std::size_t at);

} // namespace quillmere::wml
