// Pictures come from a directory that anybody may write to, so their sizes are looked at before
// they are decoded. tests/forms/skin_application_test.cpp holds this.

#include "forms/skin_picture.h"

#include <QAbstractButton>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QMetaObject>
#include <QPixmapCache>

namespace quillmere {

namespace {

constexpr int kLargestSide = 8192;

QPixmap decoded(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > kLargestSide || size.height() > kLargestSide) return {};
    return QPixmap::fromImageReader(&reader);
}

/// Decoded once as long as the file stays as it is.
QPixmap loaded(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile()) return {};
    const auto key = QStringLiteral("skin %1 %2 %3")
                         .arg(file.lastModified().toMSecsSinceEpoch())
                         .arg(file.size())
                         .arg(file.absoluteFilePath());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    picture = decoded(path);
    QPixmapCache::insert(key, picture);
    return picture;
}

QString doubleSized(const QString& path)
{
    const auto point = path.lastIndexOf(QLatin1Char('.'));
    if (point < 0) return path + QStringLiteral("@2x");
    return path.left(point) + QStringLiteral("@2x") + path.mid(point);
}

} // namespace

QPixmap skinPicture(const QString& path, qreal ratio)
{
    if (ratio > 1) {
        if (auto picture = loaded(doubleSized(path)); !picture.isNull()) {
            picture.setDevicePixelRatio(2);
            return picture;
        }
    }
    auto picture = loaded(path);
    picture.setDevicePixelRatio(1); // Qt takes a name with "@2x" for a double one by itself
    return picture;
}

void showPicture(QWidget& control, const QPixmap& picture)
{
    if (control.metaObject()->indexOfProperty("picture") >= 0) {
        control.setProperty("picture", picture);
    } else if (auto* label = qobject_cast<QLabel*>(&control)) {
        label->setPixmap(picture);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
        button->setIcon(QIcon(picture));
        button->setIconSize(picture.deviceIndependentSize().toSize());
    }
}

} // namespace quillmere
