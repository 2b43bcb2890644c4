#include "platform/host/SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

const QByteArray raiseWord = QByteArrayLiteral("raise\n");
constexpr int retryMs = 50;
constexpr qsizetype longestPlace = 50;

/// A short path (sockets allow about a hundred bytes) that is the user's own and stands for the folder.
QString nameFor(const QString& folder) {
    const QString real = QFileInfo(folder).canonicalFilePath();
    const auto digest =
        QCryptographicHash::hash((real.isEmpty() ? folder : real).toUtf8(), QCryptographicHash::Sha256)
            .toHex()
            .left(16);
    QString place = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QFileInfo(place).isWritable() || place.size() > longestPlace)
        place = QDir::tempPath();
    return place + u"/quiverdeck-%1-%2"_s.arg(getuid()).arg(QString::fromLatin1(digest));
}

} // namespace

SingleInstance::SingleInstance(const QString& folder, QObject* parent)
    : QObject(parent), name_(nameFor(folder)), lock_(std::make_unique<QLockFile>(name_ + u".lock"_s)) {
    // A lock is never too old; only a dead owner gives it up.
    lock_->setStaleLockTime(0);
    first_ = lock_->tryLock(0) || lock_->error() != QLockFile::LockFailedError;
    if (first_)
        listen();
}

SingleInstance::~SingleInstance() = default;

void SingleInstance::listen() {
    // The lock is ours, so a socket that stands there was left by a program that died.
    QLocalServer::removeServer(name_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = server_.nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            socket->disconnectFromServer();
            Q_EMIT raiseRequested();
        }
    });
    server_.listen(name_);
}

bool SingleInstance::askToRaise(int milliseconds) const {
    const QDeadlineTimer deadline(milliseconds);
    do {
        QLocalSocket socket;
        socket.connectToServer(name_);
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) {
            socket.write(raiseWord);
            socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime()));
            return true;
        }
        QThread::msleep(retryMs); // the first program holds the lock but may not listen yet
    } while (!deadline.hasExpired());
    return false;
}

} // namespace host
