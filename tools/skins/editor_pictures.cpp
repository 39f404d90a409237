#include "editor_pictures.h"

#include <QLinearGradient>

namespace quillmere {

namespace {

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

QRectF iconPlace(const ToolPlace& tool, const QPointF& corner)
{
    return {corner.x() + (tool.box.width - tool.iconSize) / 2.0, corner.y() + tool.iconTop,
        double(tool.iconSize), double(tool.iconSize)};
}

/// The shell is a little lighter at its top, as if lit from there, and has a line round it.
void drawShell(QPainter& painter, const SkinTokens& tokens)
{
    const QRectF window(0, 0, kWindowWidth, kWindowHeight);
    QLinearGradient light(window.topLeft(), window.bottomLeft());
    light.setColorAt(0, colour(mixed(tokens.shell, 0xFFFFFF, 4)));
    light.setColorAt(0.12, colour(tokens.shell));
    light.setColorAt(1, colour(mixed(tokens.shell, 0x000000, 3)));
    fillRounded(painter, window, kWindowCorner, light);
    strokeRounded(painter, window, kWindowCorner, colour(tokens.hairline));
}

void drawPanels(QPainter& painter, const SkinTokens& tokens)
{
    for (const auto& bar : {kDeckBar, kElementBar}) {
        fillRounded(painter, rectangle(bar), kPanelCorner, colour(tokens.panel));
        strokeRounded(painter, rectangle(bar), kPanelCorner,
            colour(mixed(tokens.panel, tokens.hairline, 55)));
    }
    fillRounded(painter, rectangle(kWell), kPanelCorner, colour(tokens.well));
    strokeRounded(
        painter, rectangle(kWell), kPanelCorner, colour(mixed(tokens.well, tokens.hairline, 60)));
    for (const auto& line : kSeparators)
        painter.fillRect(rectangle(line), colour(tokens.hairline));
}

/// Where no deck is open, the mark stands in the empty well, hardly lighter than it.
void drawRestingMark(QPainter& painter, const BuilderPlaces& places, const SkinTokens& tokens)
{
    const QPointF middle = rectangle(kDisplay).center();
    const QRectF place(middle.x() - 72, middle.y() - 72, 144, 144);
    drawIcon(
        painter, places, "radio-tower", place, colour(mixed(tokens.well, tokens.ink, 9)), 1.25);
}

void drawGrip(QPainter& painter, const QRectF& place, const QColor& ink)
{
    constexpr double kStep = 8;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    for (int column = 0; column < 6; ++column) {
        for (int row = 0; row < 2; ++row) {
            const QPointF dot(place.center().x() + (column - 2.5) * kStep,
                place.center().y() + (row - 0.5) * kStep);
            painter.drawEllipse(dot, 1.5, 1.5);
        }
    }
}

void drawTitle(QPainter& painter, const BuilderPlaces& places, const SkinTokens& tokens)
{
    drawMark(painter, places, rectangle(kMark), colour(tokens.accent), colour(tokens.onAccent));
    drawGrip(painter, rectangle(kGrip), colour(tokens.muted));
}

void drawTools(QPainter& painter, const BuilderPlaces& places, const SkinTokens& tokens)
{
    for (const auto& tool : kToolPlaces) {
        if (tool.icon.empty()) continue;
        const auto place = iconPlace(tool, rectangle(tool.box).topLeft());
        drawIcon(painter, places, tool.icon, place, colour(tokens.ink));
    }
}

void writeWindow(const BuilderPlaces& places, const SkinTokens& tokens)
{
    writePicture(
        places, windowPictureName(tokens), {kWindowWidth, kWindowHeight}, [&](QPainter& painter) {
            drawShell(painter, tokens);
            drawPanels(painter, tokens);
            drawRestingMark(painter, places, tokens);
            drawTitle(painter, places, tokens);
            drawTools(painter, places, tokens);
        });
}

/// The pressed look: the accent with the icon on it.
void writeTool(const BuilderPlaces& places, const SkinTokens& tokens, const ToolPlace& tool)
{
    const QSize size(tool.box.width, tool.box.height);
    writePicture(places, toolPictureName(tokens, tool.name), size, [&](QPainter& painter) {
        fillRounded(painter, QRectF(QPointF(), size), kButtonCorner, colour(tokens.accent));
        drawIcon(painter, places, tool.icon, iconPlace(tool, {0, 0}), colour(tokens.onAccent));
    });
}

void writeGrip(const BuilderPlaces& places, const SkinTokens& tokens)
{
    const QSize size(kGrip.width, kGrip.height);
    writePicture(places, toolPictureName(tokens, "Move"), size, [&](QPainter& painter) {
        fillRounded(painter, QRectF(QPointF(), size), kButtonCorner, colour(tokens.accent));
        drawGrip(painter, QRectF(QPointF(), size), colour(tokens.onAccent));
    });
}

void writeSmallIcon(const BuilderPlaces& places, const SkinTokens& tokens, std::string_view icon)
{
    const QSize size(kNavigationIconSize, kNavigationIconSize);
    writePicture(places, navigationPictureName(tokens, icon), size, [&](QPainter& painter) {
        drawIcon(painter, places, icon, QRectF(QPointF(), size), colour(tokens.ink), 2);
    });
}

} // namespace

QString windowPictureName(const SkinTokens& tokens)
{
    return textOf(tokens.file) + QStringLiteral("-window");
}

QString toolPictureName(const SkinTokens& tokens, std::string_view tool)
{
    return textOf(tokens.file) + QStringLiteral("-tool-") + textOf(tool).toLower();
}

QString navigationPictureName(const SkinTokens& tokens, std::string_view icon)
{
    return textOf(tokens.file) + QStringLiteral("-icon-") + textOf(icon);
}

void writeEditorPictures(const BuilderPlaces& places, const SkinTokens& tokens)
{
    writeWindow(places, tokens);
    for (const auto& tool : kToolPlaces) {
        if (!tool.icon.empty()) writeTool(places, tokens, tool);
    }
    writeGrip(places, tokens);
    for (const auto& button : kNavigationPlaces) {
        if (!button.icon.empty()) writeSmallIcon(places, tokens, button.icon);
    }
    for (const auto icon : kSmallIcons)
        writeSmallIcon(places, tokens, icon);
}

} // namespace quillmere
