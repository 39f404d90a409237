// Held by inline_objects_test.cpp.

#include "editor/picture_cache.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace quillmere {
namespace {

constexpr int kMaxSidePx = 4096;
constexpr qint64 kMaxFileBytes = qint64{64} * 1024 * 1024;

QImage readPicture(QIODevice& file)
{
    // A pipe or a device would never end.
    if (file.isSequential() || file.size() > kMaxFileBytes) return {};
    QImageReader reader(&file);
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
    return *pictures_.insert(whole, read(whole));
}

QImage PictureCache::read(const QString& path) const
{
    if (QFile file(path); QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
        return readPicture(file);
    const auto name = QFile::encodeName(path).toStdString();
    if (files_ == nullptr || QFileInfo::exists(path) || !files_->exists(name)) return {};
    auto bytes = QByteArray::fromStdString(files_->read(name));
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::ReadOnly) ? readPicture(buffer) : QImage();
}

} // namespace quillmere
