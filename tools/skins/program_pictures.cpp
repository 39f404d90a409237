#include "program_pictures.h"

#include "skin_tokens.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>

#include <vector>

namespace quillmere {

namespace {

constexpr const SkinTokens& kTokens = kEditorTokens[0];
constexpr int kIconSizes[] = {16, 24, 32, 48, 64, 128, 256};

void drawProgramIcon(QPainter& painter, const BuilderPlaces& places, double size)
{
    drawMark(painter, places, QRectF(0, 0, size, size), colour(kTokens.accent),
        colour(kTokens.onAccent));
}

QByteArray iconPng(const BuilderPlaces& places, int size)
{
    const auto image = drawn(
        {size, size}, 1, [&](QPainter& painter) { drawProgramIcon(painter, places, size); });
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.convertToFormat(QImage::Format_ARGB32).save(&buffer, "png", 0);
    return bytes;
}

/// An icon file: its head, one entry of 16 bytes a picture, the pictures as PNG.
QByteArray iconFile(const std::vector<QByteArray>& pictures)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(pictures.size());
    auto offset = quint32(6 + 16 * pictures.size());
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const auto side = quint8(kIconSizes[i] & 0xFF); // 256 is written as 0
        const auto length = quint32(pictures[i].size());
        out << side << side << quint16(0) << quint16(1) << quint16(32) << length << offset;
        offset += length;
    }
    for (const auto& picture : pictures)
        bytes += picture;
    return bytes;
}

void drawSplash(QPainter& painter, const BuilderPlaces& places)
{
    painter.fillRect(QRectF(0, 0, 480, 280), colour(kTokens.shell));
    drawMark(
        painter, places, QRectF(204, 64, 72, 72), colour(kTokens.accent), colour(kTokens.onAccent));
    painter.setPen(colour(kTokens.ink));
    painter.setFont(programFont(30, QFont::DemiBold));
    painter.drawText(QRectF(0, 152, 480, 44), Qt::AlignCenter, QStringLiteral("Quillmere"));
    fillRounded(painter, QRectF(204, 210, 72, 4), 2, colour(kTokens.display));
}

/// The choices of the assistant: tiles in the colour of the program's mark.
struct ChoicePicture {
    const char* name;
    std::string_view icon;
};
constexpr ChoicePicture kChoicePictures[] = {
    {"choice-new", "file-plus-corner"},
    {"choice-open", "folder-open"},
    {"choice-templates", "layout-panel-top"},
};
constexpr QRectF kChoiceTile{0, 0, 48, 48};
constexpr QRectF kChoiceIcon{11, 11, 26, 26};
constexpr double kChoiceCorner = 9;

} // namespace

void writeChoicePictures(const BuilderPlaces& places)
{
    for (const auto& choice : kChoicePictures)
        writePicture(places, QLatin1String(choice.name), kChoiceTile.size().toSize(),
            [&](QPainter& painter) {
                fillRounded(painter, kChoiceTile, kChoiceCorner, colour(kTokens.accent));
                drawIcon(painter, places, choice.icon, kChoiceIcon, colour(kTokens.onAccent));
            });
}

void writeSplash(const BuilderPlaces& places)
{
    writeBitmap(places, QStringLiteral("splash"), {480, 280},
        [&](QPainter& painter) { drawSplash(painter, places); });
}

void writeProgramIcon(const BuilderPlaces& places, const QString& directory)
{
    std::vector<QByteArray> pictures;
    for (const int size : kIconSizes) {
        pictures.push_back(iconPng(places, size));
        writeFile(directory + QStringLiteral("Logo-%1.png").arg(size), pictures.back());
    }
    writeFile(directory + QStringLiteral("Logo.ico"), iconFile(pictures));
}

} // namespace quillmere
