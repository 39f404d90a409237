// Markup that cannot be shown at all stands out; atoms, which belong there, are quiet. Seen in the
// pictures of quillmere-gallery.

#include "editor/marker_objects.h"

#include "editor/marker_texts.h"
#include "editor/page/page_places.h"
#include "editor/page_geometry.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quillmere {
namespace {

constexpr double kChipPaddingPx = 9;
constexpr double kChipGapPx = 3;
constexpr double kFieldPaddingPx = 6;
constexpr double kTitleGapPx = 6;
constexpr double kFrameReachPx = 9; // beyond the text, at both sides
constexpr double kFrameRadiusPx = 6;
constexpr double kFrameEndPx = 12; // the height of the line that ends a group of fields
constexpr double kShortLinePx = 40;
constexpr double kQuiet = 0.75; // of the ink

bool isAtom(std::string_view source)
{
    return source.starts_with("<!--#");
}

QFont chipFont(const SurfaceStyle& style, std::string_view source)
{
    return isAtom(source) ? smallFont(style, 75, QFont::Normal)
                          : smallFont(style, 80, QFont::Medium);
}

QFont titleFont(const SurfaceStyle& style)
{
    return smallFont(style, 80, QFont::DemiBold);
}

QPen hairline(const QPainter& painter, const QColor& colour)
{
    const double dots = painter.deviceTransform().m11();
    return {colour, std::max(1.0, std::floor(dots)) / dots};
}

/// How far the middle of an object's own text has to be moved up so that it stands on the line of
/// the text around it; the object is as much higher twice, since its middle is fixed.
double liftOf(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return std::ceil((metrics.ascent() - metrics.descent()) / 2 - metrics.xHeight() / 4);
}

QSizeF chipSize(std::string_view source, const SurfaceStyle& style)
{
    const auto font = chipFont(style, source);
    const QFontMetricsF metrics(font);
    const double text = metrics.horizontalAdvance(markerLabel(source));
    const double lift = isAtom(source) ? liftOf(font) : 0;
    return {text + 2 * (kChipPaddingPx + kChipGapPx), metrics.height() + 4 + 2 * lift};
}

void drawChip(
    QPainter& painter, const QRectF& place, std::string_view source, const SurfaceStyle& style)
{
    const bool isQuiet = isAtom(source);
    const auto font = chipFont(style, source);
    const double below = isQuiet ? 2 * liftOf(font) : 0;
    const auto body = place.adjusted(kChipGapPx, 0, -kChipGapPx, -below);
    painter.setPen(isQuiet ? hairline(painter, tone(style, 0.3)) : QPen(Qt::NoPen));
    painter.setBrush(isQuiet ? tone(style, 0.06) : chipColour(style));
    const double radius = isQuiet ? body.height() / 2 : 6;
    painter.drawRoundedRect(isQuiet ? body.adjusted(0.5, 0.5, -0.5, -0.5) : body, radius, radius);
    painter.setPen(isQuiet ? tone(style, kQuiet) : style.ink);
    painter.setFont(font);
    painter.drawText(body, Qt::AlignCenter, markerLabel(source));
}

QSizeF fieldSize(std::string_view source, const SurfaceStyle& style)
{
    const auto font = pageFont(style, style.fontSizePx);
    const QFontMetricsF metrics(font);
    const double width = std::ceil(inputField(source).columns * metrics.horizontalAdvance(u'n'));
    return {width + 2 * (kFieldPaddingPx + kChipGapPx),
        std::ceil(metrics.height()) + 6 + 2 * liftOf(font)};
}

void drawField(
    QPainter& painter, const QRectF& place, std::string_view source, const SurfaceStyle& style)
{
    const auto field = inputField(source);
    const auto font = pageFont(style, style.fontSizePx);
    const double below = 2 * liftOf(font);
    const auto body = place.adjusted(kChipGapPx + 0.5, 0.5, -kChipGapPx - 0.5, -below - 0.5);
    painter.setPen(hairline(painter, tone(style, 0.6)));
    painter.setBrush(tone(style, 0.04));
    painter.drawRoundedRect(body, 3, 3);
    const auto room = body.adjusted(kFieldPaddingPx, 0, -kFieldPaddingPx, 0);
    painter.setFont(font);
    painter.setPen(field.isValue ? style.ink : tone(style, 0.62));
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
        QFontMetricsF(font).elidedText(field.text, Qt::ElideRight, room.width()));
}

QSizeF groupSize(
    std::string_view source, const SurfaceStyle& style, std::optional<double> lineWidth)
{
    const QFontMetricsF metrics(titleFont(style));
    const double text = metrics.horizontalAdvance(markerLabel(source)) + kShortLinePx;
    const bool isEnd = groupPart(source) == GroupPart::FieldsEnd;
    return {std::max(1.0, lineWidth.value_or(text)), isEnd ? kFrameEndPx : metrics.height() + 4};
}

/// The title, behind which a line goes on to the right.
void drawTitle(
    QPainter& painter, const QRectF& place, std::string_view source, const SurfaceStyle& style)
{
    const auto font = titleFont(style);
    const QFontMetricsF metrics(font);
    const auto title = metrics.elidedText(markerLabel(source), Qt::ElideRight, place.width());
    painter.setFont(font);
    painter.setPen(tone(style, kQuiet));
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, title);
    const double from = title.isEmpty()
        ? place.left()
        : place.left() + metrics.horizontalAdvance(title) + kTitleGapPx;
    painter.setPen(hairline(painter, tone(style, 0.3)));
    const double y = std::floor(place.center().y()) + 0.5;
    if (from < place.right()) painter.drawLine(QPointF(from, y), QPointF(place.right(), y));
}

struct FieldGroup {
    QRectF start;
    QRectF end;
    std::string_view source; // of its start
};

std::optional<FieldGroup> fieldGroup(
    const QTextDocument& document, const SurfacePage& page, const PageElement& element)
{
    const auto source = element.start.in(page.text);
    if (groupPart(source) != GroupPart::FieldsStart) return std::nullopt;
    const auto start = itemOf(page, element.start);
    const auto end = itemOf(page, element.end);
    if (start == kNone || end == kNone) return std::nullopt;
    const auto from = placeOfItem(page, start);
    const auto to = placeOfItem(page, end);
    const bool isInTable
        = page.blocks[from.block].cell != kNone || page.blocks[to.block].cell != kNone;
    if (isInTable) return std::nullopt;
    return FieldGroup{itemRect(document, from), itemRect(document, to), source};
}

/// A frame whose upper line makes room for the title.
void drawFrame(QPainter& painter, const FieldGroup& group, const SurfaceStyle& style)
{
    const auto font = titleFont(style);
    const auto title = QFontMetricsF(font).elidedText(
        markerLabel(group.source), Qt::ElideRight, group.start.width());
    QRectF frame(group.start.left() - kFrameReachPx, std::floor(group.start.center().y()), 0, 0);
    frame.setRight(group.start.right() + kFrameReachPx);
    frame.setBottom(std::floor(group.end.center().y()));
    painter.save();
    if (!title.isEmpty()) {
        const double width = QFontMetricsF(font).horizontalAdvance(title);
        const QRectF gap(group.start.left() - kTitleGapPx / 2, group.start.top(),
            width + kTitleGapPx, group.start.height());
        QPainterPath outside;
        outside.addRect(frame.adjusted(-2, -2, 2, 2));
        outside.addRect(gap);
        painter.setClipPath(outside, Qt::IntersectClip); // even and odd: the gap is left out
    }
    painter.setPen(hairline(painter, tone(style, 0.45)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.translated(0.5, 0.5), kFrameRadiusPx, kFrameRadiusPx);
    painter.restore();
    painter.setFont(font);
    painter.setPen(tone(style, kQuiet));
    painter.drawText(group.start, Qt::AlignVCenter | Qt::AlignLeft, title);
}

} // namespace

QFont smallFont(const SurfaceStyle& style, int percent, QFont::Weight weight)
{
    auto font = pageFont(style, std::max(9, style.fontSizePx * percent / 100));
    font.setWeight(weight);
    return font;
}

QSizeF markerSize(
    std::string_view source, const SurfaceStyle& style, std::optional<double> lineWidth)
{
    if (groupPart(source) != GroupPart::None) return groupSize(source, style, lineWidth);
    return isInputAtom(source) ? fieldSize(source, style) : chipSize(source, style);
}

void drawMarker(QPainter& painter, const QRectF& place, std::string_view source,
    const SurfaceStyle& style, std::optional<double> lineWidth)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const auto part = groupPart(source);
    const bool isFramed = lineWidth && part != GroupPart::Options;
    if (part != GroupPart::None) {
        if (!isFramed) drawTitle(painter, place, source, style);
    } else if (isInputAtom(source))
        drawField(painter, place, source, style);
    else
        drawChip(painter, place, source, style);
}

void drawFieldGroups(QPainter& painter, const QTextDocument& document, const SurfacePage& page,
    const SurfaceStyle& style, const QRectF& visible)
{
    if (!page.rules.losesNothing()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& element : page.elements) {
        if (element.kind != PageElement::Kind::Marker) continue;
        const auto group = fieldGroup(document, page, element);
        if (group && group->start.united(group->end).intersects(visible))
            drawFrame(painter, *group, style);
    }
}

} // namespace quillmere
