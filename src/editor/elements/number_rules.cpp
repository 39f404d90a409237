// Held by jump_edit_test.cpp.

#include "editor/elements/number_rules.h"

#include "document/text/number_texts.h"

#include <algorithm>
#include <charconv>

namespace quillmere {

namespace {

constexpr std::size_t kMaxFieldLength = 9;

std::string_view digitsOf(std::string_view text)
{
    return text.substr(0, text.find(','));
}

} // namespace

std::string NumberFilter(std::string_view text)
{
    return CleanNumberText(text);
}

bool isFieldNumber(std::string_view text)
{
    const auto digits = digitsOf(text);
    return text.size() <= kMaxFieldLength && !digits.empty()
        && std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; });
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
