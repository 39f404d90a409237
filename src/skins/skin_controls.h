#pragma once

#include <cstddef>
#include <string_view>

// Which control of the main window takes which item of a skin's record.

namespace quillmere {

/// Places in SkinRecord::items. Those named last are the skin's own values: they look after the
/// windows' colours and the settings, no control takes them.
enum class SkinPart : std::size_t {
    SurfaceMinimum = 0, ///< bounds and maker's value of the surface's size
    SurfaceDefault = 1,
    SurfaceMaximum = 2,
    Window = 3,
    Source = 4,
    Surface = 5,
    AreaCaption = 6,
    Hairline = 7, ///< BackColor: hairlines; ForeColor: muted text
    Accent = 8, ///< BackColor: pressed and chosen; ForeColor: what stands on it
    Danger = 9, ///< BackColor: deleting and failure; ForeColor: what stands on it
    Well = 10, ///< BackColor: behind the surface; ForeColor: edges of fields and buttons
    ShowProject = 11,
    Script = 12,
    AreaPrevious = 13,
    AreaOne = 14,
    AreaNext = 15,
};

struct SkinControl {
    std::string_view name;
    SkinPart part = SkinPart::Window;
};

/// Controls that take one item, in the order in which they are dressed.
inline constexpr SkinControl kSkinControls[] = {
    {"txtScript", SkinPart::Source},
    {"lblCurAreaCaption", SkinPart::AreaCaption},
    {"btnShowProjekt", SkinPart::ShowProject},
    {"btnScript", SkinPart::Script},
    {"btnAreaPrev", SkinPart::AreaPrevious},
    {"btnAreaOne", SkinPart::AreaOne},
    {"btnAreaNext", SkinPart::AreaNext},
};

/// The tools, each the click area "lblButton" + name over the picture "picButton" + name. The place
/// in the list is that in SkinRecord::buttons. "Morvane" has no picture.
inline constexpr std::string_view kSkinTools[] = {"Help", "System", "Upload", "BildKonverter",
    "SeiteNew", "SeiteOpen", "Area", "Table", "Image", "Link", "Option", "TextFormat", "Justify",
    "Previour", "Undo", "SeiteSave", "Morvane", "Minimize", "Close", "Move"};

/// Places in PreviewSkinRecord::items.
enum class PreviewPart : std::size_t {
    Picture = 0,
    CardCaption = 1,
    TaskCaption = 2,
    Address = 3,
    Display = 4,
    AddressLabel = 5, ///< its BackColor is the preview's ground as well
    SearchButton = 6,
    DisplayDefault = 7, ///< the maker's values of the display; no control takes them
};

struct PreviewControl {
    std::string_view name;
    PreviewPart part = PreviewPart::Picture;
};

/// Controls of the preview that take one item, in the order in which they are dressed.
inline constexpr PreviewControl kPreviewControls[] = {
    {"picSkin", PreviewPart::Picture},
    {"lblCardCaption", PreviewPart::CardCaption},
    {"lblTaskCaption", PreviewPart::TaskCaption},
    {"txtAdress", PreviewPart::Address},
    {"lblAddress", PreviewPart::AddressLabel},
    {"btnSearchFile", PreviewPart::SearchButton},
};

/// The keys of the preview, "lblButton" and "picButton" + name; the place in the list is that in
/// PreviewSkinRecord::buttons.
inline constexpr std::string_view kPreviewKeys[] = {"Select", "Back", "Commit"};

} // namespace quillmere
