// Held by paths_test.cpp.

#include "document/text/number_texts.h"

#include "document/text/windows1252.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::size_t kMaxTypedLength = 8;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isNumeric(std::string_view text)
{
    text = trimBlanks(text);
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    const auto fits
        = [](char character) { return isDigit(character) || character == '.' || character == ','; };
    return std::any_of(text.begin(), text.end(), isDigit)
        && std::all_of(text.begin(), text.end(), fits)
        && std::count(text.begin(), text.end(), ',') <= 1;
}

} // namespace

bool IsDecimal(std::string_view text)
{
    if (text.empty() || !isDigit(text.front())) return false;
    const auto digits = std::count_if(text.begin(), text.end(), isDigit);
    const auto others = static_cast<std::ptrdiff_t>(text.size()) - digits;
    return others == 0 || (others == 1 && text.find(',') != std::string_view::npos);
}

std::string CleanNumberText(std::string_view text)
{
    if (!isNumeric(text)) return {};
    std::string digits(text.substr(0, kMaxTypedLength));
    std::erase_if(digits, [](char character) { return !isDigit(character); });
    return digits;
}

} // namespace quillmere
