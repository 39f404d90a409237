#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace quillmere::bench {

/// Where on its way between deck and design text a text stands.
enum class Stage { Wml, Design, Cleaned, Converted };

/// A text that is measured: a deck as people write them, or one short piece over and over.
struct Shape {
    std::string_view name;
    std::string_view piece; ///< "" for the deck
};

[[nodiscard]] std::span<const Shape> shapes();

/// The text of a shape, not longer than `size` and shorter by one piece at most. Of the deck it is
/// what a step at `stage` would get: a card's text in WML, its design text, that text cleaned, or
/// WML again.
[[nodiscard]] std::string inputOf(const Shape& shape, Stage stage, std::size_t size);

/// A whole deck of several cards; of the other shapes their text as it is.
[[nodiscard]] std::string deckOf(const Shape& shape, std::size_t size);

} // namespace quillmere::bench
