// Held by inline_objects_test.cpp.

#include "editor/picture_cache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace quillmere {
namespace {

constexpr int kMaxSidePx = 4096;
constexpr qint64 kMaxFileBytes = 64 * 1024 * 1024;

QImage readPicture(const QString& path)
{
    const QFileInfo file(path);
    // A pipe or a device would never end.
    if (!file.isFile() || file.size() > kMaxFileBytes) return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > kMaxSidePx || size.height() > kMaxSidePx) return {};
    return reader.read();
}

} // namespace

void PictureCache::reset(const std::string& directory)
{
    directory_ = QFile::decodeName(QByteArray::fromStdString(directory));
    pictures_.clear();
}

QImage PictureCache::find(std::string_view path)
{
    const auto name
        = QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())).trimmed());
    if (name.isEmpty()) return {};
    const auto whole = QDir::isAbsolutePath(name) ? name : directory_ + name;
    const auto known = pictures_.constFind(whole);
    if (known != pictures_.constEnd()) return *known;
    return *pictures_.insert(whole, readPicture(whole));
}

} // namespace quillmere
