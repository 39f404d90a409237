#pragma once

#include <optional>
#include <string>
#include <string_view>

// The rules of fields for whole numbers.

namespace quillmere {

/// What stays of a text while it is typed: see CleanNumberText; of a text that is no number its
/// digits, so that a letter typed by mistake does not empty the field. At most 8 digits.
[[nodiscard]] std::string NumberFilter(std::string_view text);

/// Whether a text counts as a number: at most 9 characters, all digits, or digits with a comma
/// behind them; what follows the comma is not looked at.
[[nodiscard]] bool isFieldNumber(std::string_view text);

struct NumberLimits {
    int least = 1;
    int greatest = 1;
};

/// The number in a field; nullopt where it is none or lies outside of the limits. What follows a
/// comma does not count.
[[nodiscard]] std::optional<int> fieldNumber(std::string_view text, NumberLimits limits);

} // namespace quillmere
