#pragma once

#include <cstdint>
#include <string>

namespace quillmere::bench {

/// A well-formed and valid deck of any elements and attributes that WML has, in the manner of one
/// of many hands: encodings, quotes, indentation, line ends, comments, sections, references, with
/// `hasSubset` an internal subset. No rule of the mends names anything in it. The same seed gives
/// the same bytes.
[[nodiscard]] std::string generateWml(std::uint64_t seed, bool hasSubset = true);

/// A deck with about `faults` faults put into it, of all kinds that people make: missing, doubled
/// and swapped tags, text out of place, lost quotes, bare characters, a cut end. No word goes,
/// apart from the cut end and what the fault itself turns into markup.
[[nodiscard]] std::string breakDeck(std::string deck, std::uint64_t seed, int faults);

} // namespace quillmere::bench
