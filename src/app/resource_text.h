#pragma once

#include "document/text/text_search.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What the text files of words and forms have in common. Line breaks carry no meaning in them: they
// are read with their lines joined.

namespace quillmere {

/// The value of an attribute in a tag such as `<word id=5 rem="a b">`; "" where the tag has none.
/// `name` is lower case with "=" behind it. Ignores case and takes the first place where the name
/// stands, also within another name. A value without quotes ends at a blank.
[[nodiscard]] std::string_view resourceAttribute(std::string_view tag, std::string_view name);

/// A text as a record's field of `width` bytes gives it back: up to its first zero byte, without
/// blanks at its ends, and cut. So a resource reads alike from both of its file forms, and no entry
/// can be of any length.
[[nodiscard]] std::string fieldText(std::string_view value, std::size_t width);

/// A whole number of 16 bits with blanks round it; nullopt for any other text.
[[nodiscard]] std::optional<std::int16_t> shortNumber(std::string_view text);

/// One entry of a resource file: `<word ...>content</word`.
struct ResourceEntry {
    std::string_view tag; ///< through its ">"
    std::string_view content;
};

/// Walks the entries of one kind from left to right. An entry ends at its end tag or, where that is
/// missing, at the next entry or the text's end; one whose ">" does not lie ahead of that is passed
/// over. All parts of the text are read once. The text must outlive the reader.
class ResourceEntries {
public:
    /// `beginTag` and `endTag` are lower case, such as "<word" and "</word".
    ResourceEntries(std::string_view text, std::string_view beginTag, std::string_view endTag);
    [[nodiscard]] std::optional<ResourceEntry> next();

private:
    std::string_view text_;
    ForwardFinder begins_;
    ForwardFinder ends_;
    std::size_t position_ = 0;
};

} // namespace quillmere
