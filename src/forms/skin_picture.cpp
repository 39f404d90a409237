// Pictures come from a directory that anybody may write to, so their sizes are looked at before
// they are decoded. tests/forms/skin_application_test.cpp holds this.

#include "forms/skin_picture.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QMetaObject>

namespace quillmere {

namespace {

constexpr int kLargestSide = 8192;

QPixmap loaded(const QString& path)
{
    if (!QFileInfo(path).isFile()) return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > kLargestSide || size.height() > kLargestSide) return {};
    return QPixmap::fromImageReader(&reader);
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
