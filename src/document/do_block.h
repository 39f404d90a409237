#pragma once

#include <string>

namespace quillmere {

/// Cuts the do elements of the card's rest `text` out of it, from the first "<do" through the last
/// "</do>" ahead of the card's end, and returns them; "" where there are none.
[[nodiscard]] std::string TakeDoBlock(std::string& text);

} // namespace quillmere
