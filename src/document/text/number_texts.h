#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Small tests of numbers and of texts that a person types for them.

namespace quillmere {

/// Whether bit `number` of the value is set, counted from 1 (the lowest) to 32.
[[nodiscard]] constexpr bool BitIsSet(std::uint32_t value, int number)
{
    return number >= 1 && number <= 32 && ((value >> (number - 1)) & 1U) != 0;
}

/// Whether the text is a number of digits with at most one "," behind the first digit.
[[nodiscard]] bool IsDecimal(std::string_view text);

/// The digits of the first 8 characters; "" where the text is no number. A number may have a sign,
/// points between its digits and one ",".
[[nodiscard]] std::string CleanNumberText(std::string_view text);

} // namespace quillmere
