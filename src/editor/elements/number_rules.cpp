// Held by jump_edit_test.cpp.

#include "editor/elements/number_rules.h"

#include "document/text/number_texts.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace quillmere {

namespace {

constexpr std::size_t kMaxFieldLength = 9;
constexpr std::size_t kMaxTypedLength = 8;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::string_view digitsOf(std::string_view text)
{
    return text.substr(0, text.find(','));
}

} // namespace

std::string NumberFilter(std::string_view text)
{
    auto digits = CleanNumberText(text);
    if (!digits.empty()) return digits;
    std::ranges::copy_if(text, std::back_inserter(digits), isDigit);
    return digits.substr(0, kMaxTypedLength);
}

bool isFieldNumber(std::string_view text)
{
    const auto digits = digitsOf(text);
    return text.size() <= kMaxFieldLength && !digits.empty()
        && std::ranges::all_of(digits, isDigit);
}

std::optional<int> fieldNumber(std::string_view text, NumberLimits limits)
{
    if (!isFieldNumber(text)) return std::nullopt;
    int value = 0;
    const auto digits = digitsOf(text);
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (value < limits.least || value > limits.greatest) return std::nullopt;
    return value;
}

} // namespace quillmere
