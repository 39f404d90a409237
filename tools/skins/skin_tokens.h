#pragma once

#include <cstdint>
#include <string_view>

namespace quillmere {

/// The colours that one editor skin is made of, as 0xRRGGBB. Every picture, record and dialog takes
/// its colours from here.
struct SkinTokens {
    std::string_view name; ///< as the person reads it
    std::string_view file; ///< what its files begin with
    std::uint32_t shell = 0; ///< window
    std::uint32_t panel = 0; ///< bars
    std::uint32_t well = 0; ///< behind the display
    std::uint32_t hairline = 0; ///< decoration: separates, tells nothing
    std::uint32_t edge = 0; ///< of fields and buttons
    std::uint32_t ink = 0;
    std::uint32_t muted = 0;
    std::uint32_t accent = 0; ///< pressed, chosen, focus
    std::uint32_t onAccent = 0;
    std::uint32_t display = 0;
    std::uint32_t displayInk = 0;
    std::uint32_t link = 0;
    std::uint32_t chip = 0; ///< markup that the surface cannot show
    std::uint32_t danger = 0;
    std::uint32_t onDanger = 0;
};

inline constexpr SkinTokens kEditorTokens[] = {
    {
        .name = "Schiefer",
        .file = "schiefer",
        .shell = 0x26323A,
        .panel = 0x1D272E,
        .well = 0x151D22,
        .hairline = 0x3B4A54,
        .edge = 0x7A8E9A,
        .ink = 0xE9EFF2,
        .muted = 0xA9B8C0,
        .accent = 0xF2A541,
        .onAccent = 0x2B1B00,
        .display = 0xD3DEB4,
        .displayInk = 0x1B2410,
        .link = 0x0B3FA8,
        .chip = 0xAEBB8C,
        .danger = 0xF08A74,
        .onDanger = 0x330B04,
    },
    {
        .name = "Papier",
        .file = "papier",
        .shell = 0xF3EFE6,
        .panel = 0xE8E2D4,
        .well = 0xDCD4C2,
        .hairline = 0xCFC6B2,
        .edge = 0x7B7264,
        .ink = 0x23292E,
        .muted = 0x4A535A,
        .accent = 0x0F6E66,
        .onAccent = 0xFFFFFF,
        .display = 0xFBFDF4,
        .displayInk = 0x1A1F16,
        .link = 0x0B3FA8,
        .chip = 0xD8DCCB,
        .danger = 0x9C2D22,
        .onDanger = 0xFFFFFF,
    },
};

/// The colour that is `share` percent of the way from `from` to `to`.
[[nodiscard]] constexpr std::uint32_t mixed(
    std::uint32_t from, std::uint32_t to, std::uint32_t share)
{
    std::uint32_t result = 0;
    for (std::uint32_t shift = 0; shift < 24; shift += 8) {
        const std::uint32_t a = (from >> shift) & 0xFFU;
        const std::uint32_t b = (to >> shift) & 0xFFU;
        result |= ((a * (100 - share) + b * share + 50) / 100) << shift;
    }
    return result;
}

/// How far a colour under the pointer goes from its ground to the ink, in percent.
inline constexpr std::uint32_t kHoverShare = 9;

/// The colours of the preview round its telephone, the same with every skin of the editor.
struct StageTokens {
    std::uint32_t ground = 0xA9BBC5;
    std::uint32_t ink = 0x1E262B;
    std::uint32_t field = 0xF8F5EE; ///< the line for addresses and its button
    std::uint32_t fieldInk = 0x23292E;
};

/// The colours of one telephone, as 0xRRGGBB.
struct TelephoneTokens {
    std::uint32_t bodyLight = 0; ///< the body runs from the one to the other
    std::uint32_t bodyDark = 0;
    std::uint32_t rim = 0;
    std::uint32_t bezel = 0; ///< round the display
    std::uint32_t display = 0;
    std::uint32_t displayInk = 0;
    std::uint32_t key = 0; ///< the three keys, and what stands on them
    std::uint32_t keyInk = 0;
    std::uint32_t lit = 0; ///< the keys while held
    std::uint32_t litInk = 0;
    std::uint32_t pad = 0; ///< the keys of numbers
    std::uint32_t padInk = 0;
    std::uint32_t engraving = 0; ///< the maker's name on the body
};

inline constexpr TelephoneTokens kNordlicht = {
    .bodyLight = 0x4A5C68,
    .bodyDark = 0x27333B,
    .rim = 0x6E828F,
    .bezel = 0x10181D,
    .display = 0xD3DEB4,
    .displayInk = 0x1B2410,
    .key = 0xE4EAED,
    .keyInk = 0x26323A,
    .lit = 0xF2A541,
    .litInk = 0x2B1B00,
    .pad = 0x34434D,
    .padInk = 0xDDE6EB,
    .engraving = 0xDDE6EB,
};
inline constexpr TelephoneTokens kWeitblick = {
    .bodyLight = 0xEDE7DA,
    .bodyDark = 0xCFC5B1,
    .rim = 0xFFFFFF,
    .bezel = 0x2A2F33,
    .display = 0xF4F6EE,
    .displayInk = 0x15191C,
    .key = 0x3B444B,
    .keyInk = 0xF3EFE6,
    .lit = 0x0F6E66,
    .litInk = 0xFFFFFF,
    .pad = 0xDAD1BF,
    .padInk = 0x3A3F43,
    .engraving = 0x3F4447,
};
inline constexpr TelephoneTokens kFalter = {
    .bodyLight = 0x8E2F3C,
    .bodyDark = 0x571823,
    .rim = 0xC77B84,
    .bezel = 0x1C0C10,
    .display = 0xBFD9E6,
    .displayInk = 0x0C2430,
    .key = 0xF5E9E4,
    .keyInk = 0x571823,
    .lit = 0x27769C,
    .litInk = 0xFFFFFF,
    .pad = 0x6E222E,
    .padInk = 0xFBEDEA,
    .engraving = 0xFBEDEA,
};

} // namespace quillmere
