#pragma once

#include "document/text/record_fields.h"

#include <array>
#include <cstddef>
#include <cstdint>

// The records of the skin files. Numbers are little-endian, texts are Windows-1252 in fields of 150
// bytes. Members of a record have the names that the files' makers know.

namespace quillmere {

using SkinText = TextField<150>;

/// How one control looks and where it stands.
struct SkinItem {
    static constexpr std::size_t kSize = 318;
    std::int16_t Left = 0; ///< pixels or twips, as the control has it
    std::int16_t Top = 0;
    std::int16_t Height = 0;
    std::int16_t Width = 0;
    std::int32_t BackColor = 0; ///< red in the low byte
    std::int32_t ForeColor = 0;
    SkinText Picture; ///< file name in the directory of the skins; blank for none
    SkinText FontName;
    std::int16_t FontSize = 0; ///< points

    static void eachField(auto& item, auto&& field)
    {
        field(0, item.Left);
        field(2, item.Top);
        field(4, item.Height);
        field(6, item.Width);
        field(8, item.BackColor);
        field(12, item.ForeColor);
        field(16, item.Picture);
        field(166, item.FontName);
        field(316, item.FontSize);
    }
};

/// A tool button: its click area and its picture.
struct SkinButton {
    static constexpr std::size_t kSize = 2 * SkinItem::kSize;
    SkinItem clickArea; ///< of the control lblButton...
    SkinItem picture; ///< of the control picButton...

    static void eachField(auto& button, auto&& field)
    {
        field(0, button.clickArea);
        field(SkinItem::kSize, button.picture);
    }
};

/// What all skins begin with.
struct SkinHead {
    static constexpr std::size_t kSize = 452;
    static constexpr std::int16_t kSelected = -1;
    SkinText Producer;
    SkinText Model; ///< blank marks no entry
    SkinText Variant;
    std::int16_t Selected = 0; ///< kSelected for the active record

    static void eachField(auto& head, auto&& field)
    {
        field(0, head.Producer);
        field(150, head.Model);
        field(300, head.Variant);
        field(450, head.Selected);
    }
};

/// A skin of the main window.
struct SkinRecord : SkinHead {
    static constexpr std::size_t kSize = 20168;
    std::array<SkinItem, 16> items;
    std::array<SkinButton, 23> buttons;

    static void eachField(auto& skin, auto&& field)
    {
        SkinHead::eachField(skin, field);
        field(SkinHead::kSize, skin.items);
        field(5540, skin.buttons);
    }
};

/// A telephone of the preview.
struct PreviewSkinRecord : SkinHead {
    static constexpr std::size_t kSize = 5860;
    std::array<SkinItem, 10> items;
    std::array<SkinButton, 3> buttons;
    SkinItem lastItem; ///< item 10, which stands behind the buttons
    std::int16_t LastValue = 0;

    static void eachField(auto& skin, auto&& field)
    {
        SkinHead::eachField(skin, field);
        field(SkinHead::kSize, skin.items);
        field(3632, skin.buttons);
        field(5540, skin.lastItem);
        field(5858, skin.LastValue);
    }
};

/// A corner of the main window's outline, in pixels of the window.
struct DevicePoint {
    static constexpr std::size_t kSize = 8;
    std::int32_t X = 0;
    std::int32_t Y = 0;

    static void eachField(auto& point, auto&& field)
    {
        field(0, point.X);
        field(4, point.Y);
    }
};

} // namespace quillmere
