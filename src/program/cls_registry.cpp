// The store is always opened for reading and writing, also to read: hence what cannot be written
// reads as nothing. Held by tests/program/settings_store_test.cpp.

#include "program/cls_registry.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringDecoder>

namespace quillmere {

namespace {

constexpr int kMaxValueBytes = 1024;

bool makeWritable(const QString& file)
{
    if (!QDir().mkpath(QFileInfo(file).path())) return false;
    return QFile(file).open(QIODevice::ReadWrite);
}

/// Text where the bytes are UTF-8, so that a person can read the file; else the bytes themselves.
QVariant stored(const QByteArray& value)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decode(value);
    if (decode.hasError() || text.toUtf8() != value) return value;
    return text;
}

// A list is what an unquoted comma makes of a value that was typed into the file.
QByteArray bytesOf(const QVariant& value)
{
    if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(", ").toUtf8();
    return value.typeId() == QMetaType::QByteArray ? value.toByteArray()
                                                   : value.toString().toUtf8();
}

QString keyOf(std::string_view name)
{
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/MORVANE/Quillmere.conf");
}

clsRegistry::clsRegistry(const QString& file)
    : store_(file, QSettings::IniFormat)
    , isUsable_(makeWritable(file))
{
}

std::string clsRegistry::ReadSetting(std::string_view name) const
{
    if (!isUsable_) return {};
    auto value = bytesOf(store_.value(keyOf(name)));
    if (value.size() > kMaxValueBytes) return {};
    if (value.endsWith('\0')) value.chop(1);
    return value.toStdString();
}

void clsRegistry::WriteSetting(std::string_view name, std::string_view value)
{
    if (!isUsable_) return;
    store_.setValue(
        keyOf(name), stored(QByteArray(value.data(), static_cast<qsizetype>(value.size()))));
}

} // namespace quillmere
