#pragma once

#include "editor_layout.h"
#include "skins/skin_records.h"

#include <cstdint>
#include <string>

namespace quillmere {

/// What an item is made from; the colours are 0xRRGGBB.
struct ItemLook {
    Box box;
    std::uint32_t back = 0;
    std::uint32_t fore = 0;
    std::string picture; ///< file name with its ending
    std::int16_t points = kLabelPoints;

    static constexpr std::int16_t kLabelPoints = 8; ///< 11 pixels at 96 dpi
    static constexpr std::int16_t kControlPoints = 10; ///< 13
    static constexpr std::int16_t kTitlePoints = 11; ///< 15
    static constexpr std::int16_t kDisplayPoints = 12; ///< 16
};

/// A colour as records have it, with red in the low byte.
[[nodiscard]] constexpr std::int32_t recordColour(std::uint32_t rgb)
{
    return static_cast<std::int32_t>((rgb & 0xFFU) << 16U | (rgb & 0xFF00U) | (rgb >> 16U & 0xFFU));
}

[[nodiscard]] inline SkinItem skinItem(const ItemLook& look)
{
    SkinItem item;
    item.Left = static_cast<std::int16_t>(look.box.left);
    item.Top = static_cast<std::int16_t>(look.box.top);
    item.Width = static_cast<std::int16_t>(look.box.width);
    item.Height = static_cast<std::int16_t>(look.box.height);
    item.BackColor = recordColour(look.back);
    item.ForeColor = recordColour(look.fore);
    item.Picture.set(look.picture);
    item.FontName.set("Inter");
    item.FontSize = look.points;
    return item;
}

} // namespace quillmere
