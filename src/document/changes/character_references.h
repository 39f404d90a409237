#pragma once

#include "document/changes/markup_names.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quillmere {

/// A character of marked up text, with what stands for it undone.
struct DecodedCharacter {
    enum class Form { Plain, Known, Unknown, Broken };
    Form form = Form::Plain; ///< Broken: an '&' that begins no reference
    std::size_t length = 1; ///< in the source
    std::string text; ///< Windows-1252; see below
};

/// Begins the text of a reference that stays one, in place of its '&', so that "&amp;x;" and
/// "&x;" stay apart.
inline constexpr char kKeptReference = '\x01';

/// The character at `offset`, which must lie within `text`. References that XML 1.0 and WML 1.1
/// define are undone; a character that Windows-1252 has not is kept as a decimal reference and an
/// unknown entity by its name, both with kKeptReference. `bytes` tells which names there are.
[[nodiscard]] DecodedCharacter decodeCharacter(
    std::string_view text, std::size_t offset, MarkupBytes bytes = MarkupBytes::Windows1252);

/// All of `text` decoded, for example the value of an attribute.
[[nodiscard]] std::string decodeReferences(std::string_view text);

} // namespace quillmere
