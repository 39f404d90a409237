// White text on a black picture of 8 bit grey is the coverage itself. Held by
// alternative_text_painter_qt_test.cpp.

#include "imageconv/alternative_text_painter_qt.h"

#include "document/text/windows1252.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QString>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kMarginPx = 2;

QString unicodeText(std::string_view text)
{
    const std::string utf8 = toUtf8(text);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

TextCoverage coverageOf(const QImage& image)
{
    TextCoverage result{image.width(), image.height(), {}};
    for (int y = 0; y < image.height(); ++y) { // rows of an image are padded
        const uchar* const row = image.constScanLine(y);
        result.pixels.append(row, row + image.width());
    }
    return result;
}

} // namespace

QtAlternativeTextPainter::QtAlternativeTextPainter(const QFont& font)
    : font_(font)
{
    // Full hinting keeps stems on whole pixels; grey levels need no knowledge of the screen's order
    // of colours.
    font_.setHintingPreference(QFont::PreferFullHinting);
    font_.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
}

TextCoverage QtAlternativeTextPainter::paint(std::string_view text)
{
    const QString shown = unicodeText(text);
    const QFontMetrics metrics(font_);
    QImage image(std::max(metrics.horizontalAdvance(shown), 1) + 2 * kMarginPx,
        metrics.height() + 2 * kMarginPx, QImage::Format_Grayscale8);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(font_);
    painter.setPen(Qt::white);
    painter.drawText(kMarginPx, kMarginPx + metrics.ascent(), shown);
    painter.end();
    return coverageOf(image);
}

} // namespace quillmere
