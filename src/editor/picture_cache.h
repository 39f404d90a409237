#pragma once

#include "document/platform/work_files.h"

#include <QHash>
#include <QImage>
#include <QString>

#include <string>
#include <string_view>

namespace quillmere {

/// The pictures of a page, each read once. A picture larger than 4096 by 4096 is not decoded.
class PictureCache {
public:
    /// A display copy that the disk has not is asked of `files`.
    explicit PictureCache(const WorkFiles* files = nullptr)
        : files_(files)
    {
    }
    /// Where relative paths begin, with its separator. Forgets all pictures.
    void reset(const std::string& directory);
    /// The picture of a path as bytes of the system; a null image where there is none, or where it
    /// cannot be read.
    [[nodiscard]] QImage find(std::string_view path);

private:
    [[nodiscard]] QImage read(const QString& path) const;

    const WorkFiles* files_;
    QString directory_;
    QHash<QString, QImage> pictures_;
};

} // namespace quillmere
