// The palette of the telephones. Held by skin_files_test.cpp.

#include "skins/palette.h"

#include <array>
#include <cstdlib>

namespace quillmere {

namespace {

constexpr std::array<std::string_view, kSwatchCount> kTags = {"2391815", "2343189", "11977472",
    "16776960", "12788258", "12452039", "4915199", "16777091", "16745472", "&HFF0000", "&H00C0C0C0",
    "16729593", "9730559", "10091652", "16761209", "16744063", "&H00E0E0E0", "13025279", "11599871",
    "11730875", "16777158", "16768963", "16760831", "&HFFFFFF"};

constexpr std::int32_t digitValue(char digit)
{
    return digit >= 'A' ? digit - 'A' + 10 : digit - '0';
}

constexpr std::int32_t numberOf(std::string_view tag)
{
    const bool hexadecimal = tag.starts_with("&H");
    if (hexadecimal) tag.remove_prefix(2);
    std::int32_t number = 0;
    for (const char digit : tag)
        number = number * (hexadecimal ? 16 : 10) + digitValue(digit);
    return number;
}

constexpr auto kColours = [] {
    std::array<std::int32_t, kSwatchCount> colours{};
    for (std::size_t i = 0; i < kTags.size(); ++i)
        colours[i] = numberOf(kTags[i]);
    return colours;
}();

} // namespace

Swatch swatch(int index)
{
    const auto at = static_cast<std::size_t>(index);
    return {index, kTags.at(at), kColours.at(at)};
}

Swatch GetNearestColor(std::int32_t colour)
{
    if (colour < 0) colour = 0;
    int nearest = 0;
    std::int32_t smallest = std::abs(colour - kColours.front());
    for (int i = 1; i < kSwatchCount; ++i) {
        const std::int32_t distance = std::abs(colour - kColours.at(static_cast<std::size_t>(i)));
        if (distance >= smallest) continue;
        smallest = distance;
        nearest = i;
    }
    return swatch(nearest);
}

} // namespace quillmere
