#include "editor_records.h"

#include "editor_layout.h"
#include "editor_pictures.h"
#include "skin_items.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillmere {

namespace {

std::string pictureFile(const QString& name)
{
    return name.toStdString() + ".png";
}

SkinItem& itemOf(SkinRecord& record, SkinPart part)
{
    return record.items.at(static_cast<std::size_t>(part));
}

constexpr Box sized(int width, int height)
{
    return {kDisplay.left, kDisplay.top, width, height};
}

/// The surface's own width leaves room for its scroll bar.
void setSurface(SkinRecord& record, const SkinTokens& tokens)
{
    const auto put = [&](SkinPart part, const Box& box) {
        itemOf(record, part)
            = skinItem({box, tokens.display, tokens.displayInk, "", ItemLook::kDisplayPoints});
    };
    const Box whole = sized(kDisplay.width - kScrollBarWidth, kDisplay.height);
    put(SkinPart::SurfaceMinimum, sized(120, 80));
    put(SkinPart::SurfaceDefault, whole);
    put(SkinPart::SurfaceMaximum, whole);
    put(SkinPart::Surface, whole);
}

void setWindow(SkinRecord& record, const SkinTokens& tokens)
{
    const Box window{0, 0, kWindowWidth, kWindowHeight};
    itemOf(record, SkinPart::Window) = skinItem({window, tokens.shell, tokens.ink,
        pictureFile(windowPictureName(tokens)), ItemLook::kControlPoints});
    itemOf(record, SkinPart::Source)
        = skinItem({kDisplay, tokens.display, tokens.displayInk, "", ItemLook::kControlPoints});
    itemOf(record, SkinPart::Source).FontName.set("monospace"); // whichever the system has
    itemOf(record, SkinPart::AreaCaption)
        = skinItem({kAreaCaption, tokens.well, tokens.ink, "", ItemLook::kTitlePoints});
}

/// Colours that no control takes, for the windows' palette.
void setColours(SkinRecord& record, const SkinTokens& tokens)
{
    itemOf(record, SkinPart::Hairline) = skinItem({{}, tokens.hairline, tokens.muted, ""});
    itemOf(record, SkinPart::Accent) = skinItem({{}, tokens.accent, tokens.onAccent, ""});
    itemOf(record, SkinPart::Danger) = skinItem({{}, tokens.danger, tokens.onDanger, ""});
    itemOf(record, SkinPart::Well) = skinItem({{}, tokens.well, tokens.edge, ""});
}

void setNavigation(SkinRecord& record, const SkinTokens& tokens)
{
    for (const auto& place : kNavigationPlaces) {
        const auto picture
            = place.icon.empty() ? "" : pictureFile(navigationPictureName(tokens, place.icon));
        itemOf(record, place.part)
            = skinItem({place.box, tokens.shell, tokens.ink, picture, ItemLook::kControlPoints});
    }
}

void setTool(SkinRecord& record, const SkinTokens& tokens, const ToolPlace& place)
{
    const auto index = std::find(std::begin(kSkinTools), std::end(kSkinTools), place.name)
        - std::begin(kSkinTools);
    const bool inBar = place.box.width == kToolWidth;
    const auto points = inBar ? ItemLook::kLabelPoints : ItemLook::kTitlePoints;
    auto& button = record.buttons.at(static_cast<std::size_t>(index));
    button.clickArea = skinItem({place.box, inBar ? tokens.panel : tokens.shell,
        inBar ? tokens.muted : tokens.ink, "", points});
    if (place.icon.empty()) return;
    button.picture = skinItem({place.box, tokens.accent, tokens.onAccent,
        pictureFile(toolPictureName(tokens, place.name)), points});
}

void setHandle(SkinRecord& record, const SkinTokens& tokens)
{
    auto& handle = record.buttons.at(std::size(kSkinTools) - 1);
    handle.clickArea = skinItem({kMoveHandle, tokens.shell, tokens.muted, ""});
    handle.picture = skinItem(
        {kGrip, tokens.accent, tokens.onAccent, pictureFile(toolPictureName(tokens, "Move"))});
}

} // namespace

SkinRecord editorRecord(const SkinTokens& tokens)
{
    SkinRecord record;
    record.Producer.set("Morvane");
    record.Model.set(tokens.name);
    if (&tokens == &kEditorTokens[0]) record.Selected = SkinHead::kSelected;
    setSurface(record, tokens);
    setWindow(record, tokens);
    setColours(record, tokens);
    setNavigation(record, tokens);
    for (const auto& place : kToolPlaces)
        setTool(record, tokens, place);
    setHandle(record, tokens);
    return record;
}

std::vector<DevicePoint> windowOutline()
{
    constexpr int kSteps = 16; // of one corner
    constexpr double kRight = std::numbers::pi / 2;
    struct Corner {
        int x, y;
        double start;
    };
    constexpr Corner kCorners[] = {
        {kWindowCorner, kWindowCorner, 2 * kRight},
        {kWindowWidth - kWindowCorner, kWindowCorner, 3 * kRight},
        {kWindowWidth - kWindowCorner, kWindowHeight - kWindowCorner, 0},
        {kWindowCorner, kWindowHeight - kWindowCorner, kRight},
    };
    std::vector<DevicePoint> points;
    for (const auto& corner : kCorners) {
        for (int step = 0; step <= kSteps; ++step) {
            const double angle = corner.start + kRight * step / kSteps;
            points.push_back({std::int32_t(std::lround(corner.x + kWindowCorner * std::cos(angle))),
                std::int32_t(std::lround(corner.y + kWindowCorner * std::sin(angle)))});
        }
    }
    points.push_back(points.front());
    return points;
}

} // namespace quillmere
