// tests/forms/theme_test.cpp holds this.

#include "forms/theme.h"

#include "forms/skin_application.h"
#include "forms/theme_style.h"
#include "skins/skin_controls.h"

#include <cmath>
#include <memory>

namespace quillmere {

namespace {

struct Pair {
    QColor ground;
    QColor ink;
};

const SkinItem& itemOf(const SkinRecord& skin, SkinPart part)
{
    return skin.items.at(static_cast<std::size_t>(part));
}

/// The colours of an item where they can be told apart.
Pair pairOf(const SkinItem& item, const Pair& otherwise)
{
    if (item.BackColor == item.ForeColor) return otherwise;
    return {skinColour(item.BackColor), skinColour(item.ForeColor)};
}

bool isDark(const QColor& colour)
{
    return qGray(colour.rgb()) < 128;
}

} // namespace

QColor blended(const QColor& from, const QColor& to, double share)
{
    const auto part = [share](int a, int b) { return int(std::lround(a + (b - a) * share)); };
    return {
        part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue())};
}

Theme themeOf(const SkinRecord& skin)
{
    Theme theme;
    const Theme usual;
    const auto window = pairOf(itemOf(skin, SkinPart::Window), {usual.shell, usual.ink});
    theme.shell = window.ground;
    theme.ink = window.ink;
    theme.panel = pairOf(skin.buttons.front().clickArea, window).ground;
    const auto between = [&](double share) { return blended(window.ground, window.ink, share); };
    const auto lines = pairOf(itemOf(skin, SkinPart::Hairline), {between(0.15), between(0.75)});
    theme.hairline = lines.ground;
    theme.muted = lines.ink;
    const auto well = pairOf(itemOf(skin, SkinPart::Well), {theme.panel, between(0.5)});
    theme.well = well.ground;
    theme.edge = well.ink;
    const auto accent = pairOf(itemOf(skin, SkinPart::Accent), {window.ink, window.ground});
    theme.accent = accent.ground;
    theme.onAccent = accent.ink;
    const auto danger = pairOf(itemOf(skin, SkinPart::Danger), {accent.ground, accent.ink});
    theme.danger = danger.ground;
    theme.onDanger = danger.ink;
    const auto page = pairOf(itemOf(skin, SkinPart::Surface), {usual.display, usual.displayInk});
    theme.display = page.ground;
    theme.displayInk = page.ink;
    return theme;
}

Theme activeTheme(SkinTables& tables)
{
    const auto* skin = activeEditorSkin(tables);
    return skin == nullptr ? Theme{} : themeOf(*skin);
}

QPalette paletteOf(const Theme& theme)
{
    QPalette palette(theme.ink, theme.shell);
    const QColor field = isDark(theme.shell) ? theme.panel : blended(theme.shell, Qt::white, 0.6);
    const QPair<QPalette::ColorRole, QColor> colours[] = {
        {QPalette::Window, theme.shell},
        {QPalette::WindowText, theme.ink},
        {QPalette::Base, field},
        {QPalette::AlternateBase, theme.panel},
        {QPalette::Text, theme.ink},
        {QPalette::PlaceholderText, theme.muted},
        {QPalette::Button, blended(theme.shell, theme.ink, 0.06)},
        {QPalette::ButtonText, theme.ink},
        {QPalette::BrightText, theme.danger},
        {QPalette::Highlight, theme.accent},
        {QPalette::HighlightedText, theme.onAccent},
        {QPalette::ToolTipBase, theme.panel},
        {QPalette::ToolTipText, theme.ink},
        {QPalette::Link, theme.accent},
        {QPalette::LinkVisited, theme.accent},
        {QPalette::Light, theme.hairline},
        {QPalette::Midlight, theme.hairline},
        {QPalette::Mid, theme.edge},
        {QPalette::Dark, theme.edge},
        {QPalette::Shadow, theme.well},
    };
    for (const auto& [role, colour] : colours)
        palette.setColor(role, colour);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, blended(theme.shell, theme.ink, 0.4));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, theme.hairline);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, theme.muted);
    return palette;
}

void applyTheme(QApplication& application, const Theme& theme)
{
    constexpr int kControlPoints = 10;
    QFont font(QStringLiteral("Inter"));
    font.setPointSize(kControlPoints);
    auto style = std::make_unique<ThemeStyle>(theme);
    QApplication::setStyle(style.release()); // the application owns it
    application.setFont(font);
    application.setPalette(paletteOf(theme));
}

void markAsDanger(QPushButton& button)
{
    button.setProperty(kDangerProperty, true);
    button.update();
}

} // namespace quillmere
