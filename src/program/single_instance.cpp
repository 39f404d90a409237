// The lock decides, so that of two starts at one time just one is the first; a lock and a socket
// that a crash left are taken over. Held by start_test.cpp.

#include "program/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>

#include <sys/stat.h>
#include <unistd.h>

namespace quillmere {

namespace {

constexpr int kPatienceMs = 2000; // the first one may be about to listen
constexpr int kTryMs = 50;

bool isPrivate(const QString& directory)
{
    struct stat status { };
    return QDir::isAbsolutePath(directory)
        && ::stat(QFile::encodeName(directory).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == ::geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// A directory that nobody else writes to, so that nobody can take the lock or the socket away from
/// a person: the one that the system has for such files, else that of the settings.
QString ownDirectory(const QString& store)
{
    auto runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (isPrivate(runtime)) return runtime;
    auto beside = QFileInfo(store).absolutePath();
    QDir().mkpath(beside);
    return beside;
}

/// Short, since the paths of sockets are limited.
QString pathFor(const QString& store)
{
    const auto hash = QCryptographicHash::hash(store.toUtf8(), QCryptographicHash::Sha1);
    return ownDirectory(store) + QStringLiteral("/quillmere-") + QString(hash.toHex().left(12));
}

} // namespace

SingleInstance::SingleInstance(const QString& store)
    : path_(pathFor(store))
    , lock_(path_ + QStringLiteral(".lock"))
{
    lock_.setStaleLockTime(0); // it is stale when its process is gone, however old it is
    if (lock_.tryLock())
        listen();
    else
        isFirst_ = lock_.error() != QLockFile::LockFailedError;
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(path_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (auto* socket = server_.nextPendingConnection())
            socket->deleteLater();
        if (show_) show_();
    });
    server_.listen(path_);
}

void SingleInstance::ActivatePreviousInstance() const
{
    for (int waited = 0; waited < kPatienceMs; waited += kTryMs) {
        QLocalSocket socket;
        socket.connectToServer(path_);
        if (socket.waitForConnected(kTryMs)) return;
        ::usleep(kTryMs * 1000);
    }
}

} // namespace quillmere
