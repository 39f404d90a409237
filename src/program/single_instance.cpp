// The lock decides, so that of two starts at one time just one is the first; a lock and a socket
// that a crash left are taken over. Held by start_test.cpp.

#include "program/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>

#include <unistd.h>

namespace quillmere {

namespace {

constexpr int kPatienceMs = 2000; // the first one may be about to listen
constexpr int kTryMs = 50;

/// Short, since the names of sockets are limited.
QString nameOf(const QString& store)
{
    const auto hash = QCryptographicHash::hash(store.toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("quillmere-%1-%2").arg(::getuid()).arg(QString(hash.toHex().left(12)));
}

} // namespace

SingleInstance::SingleInstance(const QString& store)
    : name_(nameOf(store))
    , lock_(QDir::temp().filePath(name_ + QStringLiteral(".lock")))
{
    lock_.setStaleLockTime(0); // it is stale when its process is gone, however old it is
    if (lock_.tryLock())
        listen();
    else
        isFirst_ = lock_.error() != QLockFile::LockFailedError;
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(name_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (auto* socket = server_.nextPendingConnection())
            socket->deleteLater();
        if (show_) show_();
    });
    server_.listen(name_);
}

void SingleInstance::ActivatePreviousInstance() const
{
    for (int waited = 0; waited < kPatienceMs; waited += kTryMs) {
        QLocalSocket socket;
        socket.connectToServer(name_);
        if (socket.waitForConnected(kTryMs)) return;
        ::usleep(kTryMs * 1000);
    }
}

} // namespace quillmere
