#pragma once

#include <string>
#include <string_view>

namespace quillmere::test {

/// What breaks the rules of WML 1.1 in a deck, as xmllint tells it by tests/data/wml11.rng, with
/// the line of most faults; "" where the deck is valid. A deck that is not well-formed or has
/// another document type is told as well.
[[nodiscard]] std::string wmlFaults(std::string_view deck);

} // namespace quillmere::test
