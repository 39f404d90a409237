// Records may come from anywhere, so no number of theirs is taken without bounds.
// tests/forms/skin_application_test.cpp holds this.

#include "forms/skin_application.h"

#include "forms/skin_picture.h"
#include "forms/text.h"
#include "skins/skin_controls.h"

#include <QPalette>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kLargestSize = 4096; // of a control, in pixels
constexpr int kLargestPoints = 200;

QRect placeOf(const SkinItem& item)
{
    return {item.Left, item.Top, std::clamp<int>(item.Width, 0, kLargestSize),
        std::clamp<int>(item.Height, 0, kLargestSize)};
}

void setPlace(QWidget& control, const SkinItem& item)
{
    const QRect place = placeOf(item);
    if (control.objectName() != QLatin1String("frmPrepare")) {
        control.setGeometry(place);
    } else if (!place.isEmpty()) {
        // The main window keeps its place when the skin changes.
        control.setFixedSize(place.size());
    }
}

void setFont(QWidget& control, const SkinItem& item)
{
    QFont font = control.font();
    if (item.FontSize > 0) font.setPointSize(std::min<int>(item.FontSize, kLargestPoints));
    if (const auto family = item.FontName.text(); !family.empty())
        font.setFamily(shownText(family));
    control.setFont(font);
}

void setColours(QWidget& control, const SkinItem& item)
{
    QPalette palette = control.palette();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, skinColour(item.BackColor));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        auto ink = skinColour(item.ForeColor);
        palette.setColor(role, ink);
        ink.setAlphaF(0.4F);
        palette.setColor(QPalette::Disabled, role, ink);
    }
    control.setPalette(palette);
}

QWidget* controlOf(const QWidget& window, const QString& name)
{
    return window.findChild<QWidget*>(name);
}

void applyTo(
    const QWidget& window, const QString& name, const SkinItem& item, const QString& directory)
{
    if (auto* control = controlOf(window, name)) ApplyItem(*control, item, directory);
}

QString named(const char* prefix, std::string_view name)
{
    return QLatin1String(prefix) + shownText(name);
}

/// Click area and picture of each button; the pictures show only while pressed.
template <typename Names, typename Buttons>
void applyButtons(
    const QWidget& window, const Names& names, const Buttons& buttons, const QString& directory)
{
    for (std::size_t i = 0; i < std::size(names); ++i) {
        applyTo(window, named("lblButton", names[i]), buttons[i].clickArea, directory);
        applyTo(window, named("picButton", names[i]), buttons[i].picture, directory);
        if (auto* picture = controlOf(window, named("picButton", names[i]))) picture->hide();
    }
}

const SkinItem& itemOf(const SkinRecord& skin, SkinPart part)
{
    return skin.items.at(static_cast<std::size_t>(part));
}

const SkinItem& itemOf(const PreviewSkinRecord& skin, PreviewPart part)
{
    return skin.items.at(static_cast<std::size_t>(part));
}

QString skinDirectory(const SettingsStore& settings)
{
    return shownPath(settings.ReadSetting("Skins"));
}

/// A place left of or right of another one, in the same row.
QRect between(int left, int right, const QRect& row)
{
    return {left, row.top(), std::max(0, right - left), row.height()};
}

constexpr int kGap = 8;

} // namespace

QColor skinColour(std::int32_t colour)
{
    const auto bits = static_cast<std::uint32_t>(colour);
    return {int(bits & 0xFFU), int(bits >> 8U & 0xFFU), int(bits >> 16U & 0xFFU)};
}

void ApplyItem(QWidget& control, const SkinItem& item, const QString& directory)
{
    setPlace(control, item);
    setFont(control, item);
    setColours(control, item);
    const auto name = item.Picture.text();
    if (name.empty()) return;
    const auto picture = skinPicture(directory + shownPath(name), control.devicePixelRatioF());
    if (!picture.isNull()) showPicture(control, picture);
}

void decodePicturesAhead(SkinTables& tables, const SettingsStore& settings, qreal ratio)
{
    const auto* active = activeEditorSkin(tables);
    if (active == nullptr) return;
    const auto decode = [directory = skinDirectory(settings), ratio](const SkinItem& item) {
        const auto name = item.Picture.text();
        if (!name.empty()) static_cast<void>(skinPicture(directory + shownPath(name), ratio));
    };
    for (const auto& item : active->items)
        decode(item);
    for (const auto& button : active->buttons) {
        decode(button.clickArea);
        decode(button.picture);
    }
}

PageLook pageLook(const SkinItem& item, const ScreenTwips& twips)
{
    return {placeOf(item), skinColour(item.ForeColor), skinColour(item.BackColor),
        fontPixels(std::clamp<int>(item.FontSize, 1, kLargestPoints), twips.y),
        shownText(item.FontName.text())};
}

QRect surfacePlace(const SkinRecord& skin, int scrollBarWidth)
{
    QRect whole = placeOf(itemOf(skin, SkinPart::SurfaceDefault));
    QRect place = placeOf(itemOf(skin, SkinPart::Surface));
    if (whole.isEmpty()) whole = place; // a maker that gave no value of his own
    whole.setWidth(whole.width() + scrollBarWidth);
    place.setWidth(place.width() + scrollBarWidth);
    place.setSize(place.size().boundedTo(whole.size()));
    place.moveCenter(whole.center());
    place.moveTop(whole.top());
    return place;
}

void ApplyEditorSkin(QWidget& frmPrepare, SkinTables& tables, const SettingsStore& settings,
    const StylePage& surface)
{
    const auto* active = activeEditorSkin(tables);
    if (active == nullptr) return;
    const auto skin = *active;
    const auto directory = skinDirectory(settings);
    ApplyItem(frmPrepare, itemOf(skin, SkinPart::Window), directory);
    if (surface) {
        auto look = pageLook(itemOf(skin, SkinPart::Surface), screenTwips(frmPrepare));
        const auto* scroll = controlOf(frmPrepare, QStringLiteral("objScrollDummy"));
        look.place = surfacePlace(skin, scroll != nullptr ? scroll->width() : 0);
        surface(look);
    }
    for (const auto& control : kSkinControls)
        applyTo(frmPrepare, shownText(control.name), itemOf(skin, control.part), directory);
    applyButtons(frmPrepare, kSkinTools, skin.buttons, directory);
}

void ApplyPreviewSkin(QWidget& frmPreview, SkinTables& tables, const SettingsStore& settings,
    const StylePage& display)
{
    const auto index = FindSelectedSkin(tables, false);
    if (!index) return;
    const auto skin = tables.PreviewSkins[*index];
    const auto directory = skinDirectory(settings);
    auto palette = frmPreview.palette();
    palette.setColor(
        QPalette::Window, skinColour(itemOf(skin, PreviewPart::AddressLabel).BackColor));
    frmPreview.setPalette(palette);
    if (display) display(pageLook(itemOf(skin, PreviewPart::Display), screenTwips(frmPreview)));
    for (const auto& control : kPreviewControls)
        applyTo(frmPreview, shownText(control.name), itemOf(skin, control.part), directory);
    applyButtons(frmPreview, kPreviewKeys, skin.buttons, directory);
}

FreePlaces freePlaces(const SkinRecord& skin)
{
    const QRect page = placeOf(itemOf(skin, SkinPart::SurfaceDefault));
    const QRect caption = placeOf(itemOf(skin, SkinPart::AreaCaption));
    const QRect script = placeOf(itemOf(skin, SkinPart::Script));
    const QRect previous = placeOf(itemOf(skin, SkinPart::AreaPrevious));
    const QRect next = placeOf(itemOf(skin, SkinPart::AreaNext));
    const QRect project = placeOf(itemOf(skin, SkinPart::ShowProject));
    const QRect title = placeOf(skin.buttons[16].clickArea);
    const QRect grip = placeOf(skin.buttons[19].picture);
    const auto note = [](const QRect& place) { return place.adjusted(0, -kGap, 0, kGap); };
    return {between(title.right() + kGap, grip.left() - kGap, title),
        between(caption.right() + kGap, script.left() - 2 * kGap, caption),
        note(between(page.left(), previous.left() - 2 * kGap, previous)),
        note(between(next.right() + 2 * kGap, project.right() + 1, next))};
}

} // namespace quillmere
