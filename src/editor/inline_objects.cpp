// Pictures are drawn in whole multiples of their own dots wherever their size is one, so that the
// lines of a black and white picture stay even at every resolution. Held by inline_objects_test.cpp
// and seen in the pictures of quillmere-gallery.

#include "editor/inline_objects.h"

#include "editor/marker_objects.h"
#include "editor/page_formats.h"
#include "editor/picture_tag.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace quillmere {
namespace {

constexpr double kAboveMiddlePx = 1.5; // the middle of capitals lies above that of the line
constexpr double kRadioPx = 20;
constexpr double kRadioGapPx = 4; // ahead of the option's text
constexpr double kRadioRingPx = 14;
constexpr double kBetweenOptionsPx = 20; // options stand in one line, as their text does
constexpr double kMissingPaddingPx = 6;
constexpr double kMissingMaxTextPx = 220;

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

// Not by a cursor: those lay out the document, which asks for the sizes of objects.
bool isMarker(const QTextBlock& block, int position)
{
    for (auto piece = block.begin(); !piece.atEnd(); ++piece)
        if (piece.fragment().contains(position))
            return piece.fragment().charFormat().objectType() == kMarkerObject;
    return false;
}

/// Whether the object at this position begins its paragraph or a line after a break or heading.
bool beginsLine(QTextDocument* document, int position)
{
    const auto block = document->findBlock(position);
    if (position == block.position()) return true;
    const auto ahead = document->characterAt(position - 1);
    if (ahead == QChar::ObjectReplacementCharacter) return isMarker(block, position - 1);
    return ahead == QChar(QChar::LineSeparator);
}

/// The width of the lines of the page; nullopt in a table.
std::optional<double> lineWidth(const QTextDocument& document, const QTextFormat& format)
{
    if (format.boolProperty(kInTableProperty)) return std::nullopt;
    return document.textWidth() - 2 * document.documentMargin();
}

QSizeF radioSize(QTextDocument* document, int position)
{
    const double ahead = beginsLine(document, position) ? 0 : kBetweenOptionsPx;
    return {ahead + kRadioPx + kRadioGapPx, kRadioPx};
}

/// The ring stands at the right, next to the option's text.
void drawRadio(QPainter& painter, const QRectF& place, const SurfaceStyle& style)
{
    const double ringLeft = kRadioPx + kRadioGapPx - 1;
    QRectF ring(place.right() - ringLeft, 0, kRadioRingPx, kRadioRingPx);
    ring.moveTop(place.center().y() - kAboveMiddlePx - kRadioRingPx / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style.ink, 1.75));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(ring);
}

/// The size that the tag asks for; one side alone keeps the picture's proportion.
QSizeF wantedSize(const PictureTag& tag, const QSizeF& own)
{
    const QSizeF asked(tag.widthPx.value_or(0), tag.heightPx.value_or(0));
    if (own.isEmpty() || (tag.widthPx && tag.heightPx)) return asked;
    if (tag.widthPx) return own * (*tag.widthPx / own.width());
    if (tag.heightPx) return own * (*tag.heightPx / own.height());
    return own;
}

QString missingText(const PictureTag& tag)
{
    const auto text = shownText(tag.alternativeText).trimmed();
    return text.isEmpty() ? QStringLiteral("Bild") : text;
}

QSizeF missingSize(const SurfaceStyle& style, const PictureTag& tag)
{
    const auto asked = wantedSize(tag, {});
    const QFontMetricsF metrics(smallFont(style, 80));
    const auto text = std::min(metrics.horizontalAdvance(missingText(tag)), kMissingMaxTextPx);
    return {asked.width() > 0 ? asked.width() : std::ceil(text) + 2 * kMissingPaddingPx,
        asked.height() > 0 ? asked.height() : std::ceil(metrics.height()) + 2 * kMissingPaddingPx};
}

/// The nearest rectangle whose edges lie between the dots of the device.
QRectF onDots(const QPainter& painter, const QRectF& place)
{
    const auto toDevice = painter.deviceTransform();
    return toDevice.inverted().mapRect(QRectF(toDevice.mapRect(place).toRect()));
}

void drawDashedFrame(QPainter& painter, const QRectF& place, const QColor& colour)
{
    const double dots = painter.deviceTransform().m11();
    const double width = std::max(1.0, std::floor(dots)) / dots;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(colour, width, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2;
    painter.drawRect(onDots(painter, place).adjusted(half, half, -half, -half));
}

void drawMissing(
    QPainter& painter, const QRectF& place, const SurfaceStyle& style, const PictureTag& tag)
{
    drawDashedFrame(painter, place, lineColour(style));
    const auto font = smallFont(style, 80);
    const auto room = place.adjusted(3, 1, -3, -1);
    painter.setFont(font);
    painter.setPen(style.ink);
    painter.drawText(room, Qt::AlignCenter,
        QFontMetricsF(font).elidedText(missingText(tag), Qt::ElideRight, room.width()));
}

/// How often each dot of the picture is to be repeated on the device; 0 where the size is no
/// whole multiple of the picture's own.
int wholeMultiple(const QSizeF& size, const QSize& own, double devicePixels)
{
    const double multiple = size.width() / own.width();
    const bool isWhole = std::abs(multiple - std::round(multiple)) < 0.01
        && std::abs(size.height() - own.height() * multiple) < 0.5;
    if (!isWhole || multiple < 0.5) return 0;
    return std::max(1, static_cast<int>(std::floor(multiple * devicePixels + 0.01)));
}

void drawPicture(QPainter& painter, const QRectF& place, const QImage& image)
{
    const auto toDevice = painter.deviceTransform();
    const auto mapped = toDevice.mapRect(place);
    QRect device(mapped.topLeft().toPoint(), mapped.size().toSize());
    const double devicePixels = mapped.width() / std::max(1.0, place.width());
    const int multiple = wholeMultiple(place.size(), image.size(), devicePixels);
    if (multiple > 0) {
        const auto centre = device.center();
        device.setSize(image.size() * multiple);
        device.moveCenter(centre);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform, multiple == 0);
    painter.drawImage(toDevice.inverted().mapRect(QRectF(device)), image);
}

} // namespace

InlineObjects::InlineObjects(PictureCache& pictures, QObject* parent)
    : QObject(parent)
    , pictures_(pictures)
{
}

void InlineObjects::attachTo(QTextDocument& document)
{
    for (const int type : {kPictureObject, kRadioObject, kChipObject, kMarkerObject})
        document.documentLayout()->registerHandler(type, this);
}

QSizeF InlineObjects::intrinsicSize(
    QTextDocument* document, int position, const QTextFormat& format)
{
    const auto source = objectSource(format);
    if (format.objectType() == kRadioObject) return radioSize(document, position);
    if (format.objectType() != kPictureObject)
        return markerSize(viewOf(source), style_, lineWidth(*document, format));
    const auto tag = readPictureTag(viewOf(source));
    const auto image = pictures_.find(tag.path);
    const auto size = image.isNull() ? missingSize(style_, tag) : wantedSize(tag, image.size());
    return size + 2 * QSizeF(tag.horizontalSpacePx, tag.verticalSpacePx);
}

void InlineObjects::drawObject(
    QPainter* painter, const QRectF& place, QTextDocument* document, int, const QTextFormat& format)
{
    painter->save();
    const auto source = objectSource(format);
    if (format.objectType() == kRadioObject) {
        drawRadio(*painter, place, style_);
    } else if (format.objectType() != kPictureObject) {
        drawMarker(*painter, place, viewOf(source), style_, lineWidth(*document, format));
    } else {
        const auto tag = readPictureTag(viewOf(source));
        const auto image = pictures_.find(tag.path);
        const auto inner = place.adjusted(tag.horizontalSpacePx, tag.verticalSpacePx,
            -tag.horizontalSpacePx, -tag.verticalSpacePx);
        if (image.isNull())
            drawMissing(*painter, inner, style_, tag);
        else
            drawPicture(*painter, inner, image);
    }
    painter->restore();
}

} // namespace quillmere
