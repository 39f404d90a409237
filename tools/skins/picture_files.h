#pragma once

#include "editor_layout.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <functional>
#include <string_view>

// What all pictures are made with. Drawings are told in pixels at 96 dpi; each is kept at single
// and at double size, the double one as "NAME@2x.ENDING" beside the plain one.

namespace quillmere {

/// Where the builder reads and writes.
struct BuilderPlaces {
    QString icons; ///< directory of the icons' SVG files, with its separator
    QString skins; ///< directory that the skins are written to, with its separator
};

using Drawing = std::function<void(QPainter&)>;

[[nodiscard]] inline QColor colour(std::uint32_t rgb)
{
    return QColor::fromRgb(rgb);
}

[[nodiscard]] inline QRectF rectangle(const Box& box)
{
    return QRectF(box.left, box.top, box.width, box.height);
}

/// A drawing at `scale` on transparent ground.
[[nodiscard]] QImage drawn(const QSize& size, int scale, const Drawing& drawing);

/// Writes a drawing as PNG at both sizes. Throws FileFailure.
void writePicture(
    const BuilderPlaces& places, const QString& name, const QSize& size, const Drawing& drawing);

/// Writes a drawing without transparency as BMP of 256 colours at both sizes. Throws FileFailure.
void writeBitmap(
    const BuilderPlaces& places, const QString& name, const QSize& size, const Drawing& drawing);

/// Writes bytes where they differ from what the file has. Throws FileFailure.
void writeFile(const QString& path, const QByteArray& bytes);

/// Draws an icon of the directory of icons into the square `place`, its lines in `ink` and, on a
/// grid of 24, `stroke` wide. Throws FileFailure for an icon that is not there.
void drawIcon(QPainter& painter, const BuilderPlaces& places, std::string_view icon,
    const QRectF& place, const QColor& ink, double stroke = 1.75);

/// A rounded rectangle, filled and without a line.
void fillRounded(QPainter& painter, const QRectF& place, double corner, const QBrush& fill);

/// The line of a rounded rectangle, one pixel wide, just within `place`.
void strokeRounded(QPainter& painter, const QRectF& place, double corner, const QColor& line);

/// The round mark with the mast.
void drawMark(QPainter& painter, const BuilderPlaces& places, const QRectF& place,
    const QColor& ground, const QColor& ink);

/// The program's own face at a size in pixels.
[[nodiscard]] QFont programFont(double sizePx, QFont::Weight weight);

} // namespace quillmere
