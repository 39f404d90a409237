#include "forms/text.h"

#include "document/text/windows1252.h"

#include <QFile>

namespace quillmere {

QString shownText(std::string_view text)
{
    return QString::fromStdString(toUtf8(text));
}

std::string coreText(const QString& text)
{
    return fromUtf8(text.toStdString());
}

QString shownPath(std::string_view path)
{
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}

std::string corePath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace quillmere
