// Light falls from the top left: bodies run from light to dark, keys have a bright upper edge.

#include "picture_files.h"
#include "telephones.h"

#include <QLinearGradient>

#include <algorithm>

namespace quillmere {

namespace {

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

/// A soft shadow: rounded rectangles one within the other, each nearly transparent.
void drawShadow(QPainter& painter, const QRectF& place, double corner)
{
    constexpr int kReach = 8;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 6));
    for (int step = kReach; step > 0; --step) {
        const auto spread = place.adjusted(-step, -step, step, step).translated(0, 3);
        painter.drawRoundedRect(spread, corner + step, corner + step);
    }
}

void drawBody(QPainter& painter, const Telephone& telephone)
{
    const auto& t = telephone.tokens;
    for (const auto& part : telephone.body)
        drawShadow(painter, rectangle(part.box), part.corner);
    for (const auto& part : telephone.body) {
        const auto place = rectangle(part.box);
        QLinearGradient light(place.topLeft(), place.bottomRight());
        light.setColorAt(0, colour(t.bodyLight));
        light.setColorAt(1, colour(t.bodyDark));
        fillRounded(painter, place, part.corner, light);
        strokeRounded(painter, place, part.corner, colour(mixed(t.bodyDark, 0x000000, 35)));
        auto rim = colour(t.rim);
        rim.setAlphaF(0.4F);
        strokeRounded(painter, place.adjusted(2, 2, -2, -2), part.corner - 2, rim);
    }
}

void drawEngraving(QPainter& painter, const Telephone& telephone)
{
    auto font = programFont(11, QFont::DemiBold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    painter.setFont(font);
    painter.setPen(colour(telephone.tokens.engraving));
    const auto words = textOf(telephone.model) + QLatin1Char(' ') + textOf(telephone.variant);
    painter.drawText(rectangle(telephone.engraving), Qt::AlignCenter, words.toUpper());
}

void drawScreen(QPainter& painter, const Telephone& telephone)
{
    const auto& t = telephone.tokens;
    fillRounded(painter, rectangle(telephone.bezel), telephone.bezelCorner, colour(t.bezel));
    fillRounded(painter, rectangle(telephone.screen), 3, colour(t.display));
    fillRounded(painter, rectangle(telephone.speaker), 3, colour(mixed(t.bodyDark, 0x000000, 45)));
}

void drawKey(QPainter& painter, const BuilderPlaces& places, const KeyPlace& key,
    const QRectF& place, std::uint32_t ground, std::uint32_t ink)
{
    const double corner = std::min(place.width(), place.height()) / 2;
    QLinearGradient light(place.topLeft(), place.bottomLeft());
    light.setColorAt(0, colour(mixed(ground, 0xFFFFFF, 14)));
    light.setColorAt(1, colour(ground));
    fillRounded(painter, place, corner, light);
    strokeRounded(painter, place, corner, colour(mixed(ground, 0x000000, 30)));
    const QRectF icon(place.center() - QPointF(10, 10), QSizeF(20, 20));
    drawIcon(painter, places, key.icon, icon, colour(ink), 2);
}

/// The twelve keys of numbers, which are there for the looks.
void drawPad(QPainter& painter, const Telephone& telephone)
{
    static const QString kLabels = QStringLiteral("123456789*0#");
    const auto& [box, columns, gap] = telephone.pad;
    const int rows = int(kLabels.size()) / columns;
    const double width = double(box.width - gap * (columns - 1)) / columns;
    const double height = double(box.height - gap * (rows - 1)) / rows;
    const auto& t = telephone.tokens;
    painter.setFont(programFont(14, QFont::DemiBold));
    for (int i = 0; i < kLabels.size(); ++i) {
        const int row = i / columns;
        const QRectF place(box.left + (i % columns) * (width + gap), box.top + row * (height + gap),
            width, height);
        const double corner = std::min(width, height) / 2;
        fillRounded(painter, place, corner, colour(t.pad));
        strokeRounded(painter, place, corner, colour(mixed(t.pad, 0x000000, 28)));
        painter.setPen(colour(t.padInk));
        painter.drawText(place, Qt::AlignCenter, kLabels.at(i));
    }
}

void writeLitKey(const BuilderPlaces& places, const Telephone& telephone, std::size_t index)
{
    const auto& key = telephone.keys[index];
    const QSize size(key.box.width + 2 * kKeyGlow, key.box.height + 2 * kKeyGlow);
    const auto name = textOf(telephone.file) + QStringLiteral("-key-%1").arg(index);
    writePicture(places, name, size, [&](QPainter& painter) {
        const QRectF place(kKeyGlow, kKeyGlow, key.box.width, key.box.height);
        auto glow = colour(telephone.tokens.lit);
        glow.setAlpha(28);
        const double corner = std::min(place.width(), place.height()) / 2;
        for (int reach = kKeyGlow; reach > 0; --reach)
            fillRounded(
                painter, place.adjusted(-reach, -reach, reach, reach), corner + reach, glow);
        drawKey(painter, places, key, place, telephone.tokens.lit, telephone.tokens.litInk);
    });
}

} // namespace

void writeTelephonePictures(const BuilderPlaces& places, const Telephone& telephone)
{
    const QSize size(telephone.picture.width, telephone.picture.height);
    writePicture(places, textOf(telephone.file), size, [&](QPainter& painter) {
        drawBody(painter, telephone);
        drawEngraving(painter, telephone);
        drawScreen(painter, telephone);
        drawPad(painter, telephone);
        for (const auto& key : telephone.keys)
            drawKey(painter, places, key, rectangle(key.box), telephone.tokens.key,
                telephone.tokens.keyInk);
    });
    for (std::size_t i = 0; i < std::size(telephone.keys); ++i)
        writeLitKey(places, telephone, i);
}

} // namespace quillmere
