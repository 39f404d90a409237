#pragma once

#include "skins/skin_controls.h"

#include <string_view>

// Where everything of the main window stands, in pixels at 96 dpi.

namespace quillmere {

struct Box {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

inline constexpr int kWindowWidth = 960;
inline constexpr int kWindowHeight = 700;
inline constexpr int kWindowCorner = 22;
inline constexpr int kPanelCorner = 14;
inline constexpr int kButtonCorner = 9;
inline constexpr int kIconSize = 24;
/// Room for the surface's scroll bar, which is not counted in the surface's own width.
inline constexpr int kScrollBarWidth = 14;

inline constexpr Box kDeckBar{20, 60, 920, 76}; ///< what is done with the deck
inline constexpr Box kElementBar{20, 148, 86, 532}; ///< what goes into the area
inline constexpr Box kWell{118, 148, 822, 532}; ///< the display and where one is in the deck
inline constexpr Box kDisplay{138, 204, 782, 420};

inline constexpr Box kMark{24, 18, 24, 24}; ///< the round mark of the title
inline constexpr Box kGrip{440, 12, 80, 36};

/// A tool of the main window: its click area, which is its picture's too, and its icon.
struct ToolPlace {
    std::string_view name; ///< one of kSkinTools
    std::string_view icon; ///< file in the directory of icons; "" for none
    Box box;
    int iconSize = kIconSize;
    int iconTop = 11; ///< from the box's top
};

inline constexpr int kToolWidth = 70;
inline constexpr int kToolHeight = 64;

constexpr Box deckTool(int left)
{
    return {left, kDeckBar.top + 6, kToolWidth, kToolHeight};
}

constexpr Box elementTool(int top)
{
    return {kElementBar.left + 8, top, kToolWidth, kToolHeight};
}

inline constexpr ToolPlace kToolPlaces[] = {
    {"SeiteNew", "file-plus-corner", deckTool(28)},
    {"SeiteOpen", "folder-open", deckTool(102)},
    {"SeiteSave", "save", deckTool(176)},
    {"Undo", "undo-2", deckTool(250)},
    {"Previour", "smartphone", deckTool(345)},
    {"BildKonverter", "image-down", deckTool(419)},
    {"Upload", "upload", deckTool(493)},
    {"System", "settings-2", deckTool(788)},
    {"Help", "circle-question-mark", deckTool(862)},
    {"Area", "layout-panel-top", elementTool(156)},
    {"Table", "table", elementTool(224)},
    {"Image", "image", elementTool(292)},
    {"Link", "link", elementTool(360)},
    {"Option", "list-checks", elementTool(428)},
    {"TextFormat", "type", elementTool(517)},
    {"Justify", "text-align-center", elementTool(585)},
    {"Morvane", "", {20, 12, 128, 36}},
    {"Minimize", "minus", {860, 12, 36, 36}, 20, 8},
    {"Close", "x", {904, 12, 36, 36}, 20, 8},
};

/// Lines between groups of tools.
inline constexpr Box kSeparators[] = {
    {332, kDeckBar.top + 16, 1, kDeckBar.height - 32},
    {kElementBar.left + 16, 504, kElementBar.width - 32, 1},
};

/// The handle that moves the window; its picture is the grip within it.
inline constexpr Box kMoveHandle{152, 8, 700, 44};

/// A button that shows a small icon beside its caption or in its place.
struct NavigationPlace {
    SkinPart part = SkinPart::Script;
    std::string_view icon;
    Box box;
};

inline constexpr int kNavigationIconSize = 16;

inline constexpr NavigationPlace kNavigationPlaces[] = {
    {SkinPart::ShowProject, "files", {808, 160, 112, 32}},
    {SkinPart::Script, "code-xml", {636, 160, 164, 32}},
    {SkinPart::AreaPrevious, "chevron-left", {429, 636, 36, 32}},
    {SkinPart::AreaOne, "", {473, 636, 112, 32}},
    {SkinPart::AreaNext, "chevron-right", {593, 636, 36, 32}},
};

/// Further small icons, for buttons of the preview.
inline constexpr std::string_view kSmallIcons[] = {"folder-open"};

inline constexpr Box kAreaCaption{138, 160, 330, 32};

} // namespace quillmere
