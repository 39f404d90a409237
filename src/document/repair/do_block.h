#pragma once

#include <string>

namespace quillmere {

/// Cuts the do elements of the card's rest `text` out of it and returns them: all from the first
/// "<do" through the last "</do>" ahead of the first "</card", with what stands between them; ""
/// where there are none. Searches ignore case. Throws Overflow for a text that is longer than
/// positions can tell.
[[nodiscard]] std::string TakeDoBlock(std::string& text);

} // namespace quillmere
