#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillmere {

/// Cuts the do elements of the card's rest `text` out of it and returns them: all from the first
/// "<do" through the last "</do>" ahead of the first "</card", with what stands between them; ""
/// where there are none. Searches ignore case. Throws Overflow for a text that is longer than
/// positions can tell.
[[nodiscard]] std::string TakeDoBlock(std::string& text);

/// How long the do block is that `text` begins with: through its last "</do" tag. 0 where there is
/// none.
[[nodiscard]] std::size_t doBlockLength(std::string_view text);

} // namespace quillmere
