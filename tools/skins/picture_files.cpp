// Nothing here depends on the machine's screen or time, so that a second run writes the same bytes;
// scripts/build_skins --check holds it.

#include "picture_files.h"

#include "document/platform/files.h"
#include "document/text/failure.h"

#include <QBuffer>
#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QImageWriter>
#include <QSvgRenderer>

namespace quillmere {

namespace {

constexpr int kDotsPerMetre = 3780; // 96 dpi

QByteArray bytesOf(QImage image, const char* format, int scale)
{
    image.setDotsPerMeterX(kDotsPerMetre * scale);
    image.setDotsPerMeterY(kDotsPerMetre * scale);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(0); // the smallest file; PNG loses nothing by it
    if (!writer.write(image)) throw Failure("Bild nicht geschrieben: " + std::string(format));
    return bytes;
}

QByteArray bytesOfFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw Failure("Nicht lesbar: " + path.toStdString());
    return file.readAll();
}

QString sizedName(const QString& name, int scale, const QString& ending)
{
    return name + (scale > 1 ? QStringLiteral("@%1x").arg(scale) : QString()) + ending;
}

} // namespace

QImage drawn(const QSize& size, int scale, const Drawing& drawing)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    drawing(painter);
    return image;
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile present(path);
    if (present.open(QIODevice::ReadOnly) && present.readAll() == bytes) return;
    replaceFile(path.toStdString(), bytes.toStdString());
}

void writePicture(
    const BuilderPlaces& places, const QString& name, const QSize& size, const Drawing& drawing)
{
    for (const int scale : {1, 2}) {
        const auto image = drawn(size, scale, drawing).convertToFormat(QImage::Format_ARGB32);
        writeFile(places.skins + sizedName(name, scale, QStringLiteral(".png")),
            bytesOf(image, "png", scale));
    }
}

void writeBitmap(
    const BuilderPlaces& places, const QString& name, const QSize& size, const Drawing& drawing)
{
    for (const int scale : {1, 2}) {
        const auto image = drawn(size, scale, drawing)
                               .convertToFormat(QImage::Format_RGB32)
                               .convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
        writeFile(places.skins + sizedName(name, scale, QStringLiteral(".bmp")),
            bytesOf(image, "bmp", scale));
    }
}

void drawIcon(QPainter& painter, const BuilderPlaces& places, std::string_view icon,
    const QRectF& place, const QColor& ink, double stroke)
{
    auto svg = bytesOfFile(
        places.icons + QString::fromUtf8(icon.data(), qsizetype(icon.size())) + ".svg");
    svg.replace("currentColor", ink.name().toLatin1());
    svg.replace("stroke-width=\"2\"", "stroke-width=\"" + QByteArray::number(stroke) + "\"");
    QSvgRenderer(svg).render(&painter, place);
}

void fillRounded(QPainter& painter, const QRectF& place, double corner, const QBrush& fill)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(place, corner, corner);
}

void strokeRounded(QPainter& painter, const QRectF& place, double corner, const QColor& line)
{
    painter.setPen(QPen(line, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), corner - 0.5, corner - 0.5);
}

void drawMark(QPainter& painter, const BuilderPlaces& places, const QRectF& place,
    const QColor& ground, const QColor& ink)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(place);
    const double margin = place.width() * 0.15;
    drawIcon(
        painter, places, "radio-tower", place.adjusted(margin, margin, -margin, -margin), ink, 2.1);
}

QFont programFont(double sizePx, QFont::Weight weight)
{
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(int(sizePx));
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace quillmere
