#pragma once

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <functional>
#include <stdexcept>

/// The real program in a process of its own, with a hand inside that tells and acts (see Hand, also for the
/// targets). What does not come within a minute, or a program that is gone, throws std::runtime_error.
class RunningProgram {
public:
    const QString executable;
    /// Runs in the new process before the program: limits and rights.
    std::function<void()> before;

    void start() {
        const QString socket = place_.filePath(QStringLiteral("hand"));
        if (!server_.isListening())
            server_.listen(socket);
        process_.setProcessChannelMode(QProcess::ForwardedChannels);
        process_.setChildProcessModifier(before);
        process_.setWorkingDirectory(QStringLiteral("/")); // the program finds its folder by itself
        process_.start(QStringLiteral("/usr/bin/env"),
                       environment_ + QStringList{"QUIVERDECK_HAND=" + socket, executable});
        if (!server_.waitForNewConnection(patience))
            fail("the program is not reached");
        hand_ = server_.nextPendingConnection();
    }
    /// Ends it at once, as a power cut would; `start` starts another one.
    void kill() {
        process_.kill();
        waitForEnd();
    }
    /// Waits for the end; gives the exit code, -1 for a crash.
    int waitForEnd() {
        if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(patience))
            fail("the program does not end");
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }

    /// Asks the hand and waits for its answer, or for nothing.
    QJsonObject ask(const QStringList& request, bool waits = true) {
        hand_->write(request.join(u'\t').toUtf8() + '\n');
        hand_->waitForBytesWritten(patience);
        while (waits && !hand_->canReadLine())
            if (!hand_->waitForReadyRead(patience))
                fail("the program does not answer: " + request.join(u' '));
        return QJsonDocument::fromJson(hand_->readLine()).object();
    }
    QJsonObject see(const QString& target) { return ask({QStringLiteral("see"), target}); }
    QJsonObject texts(const QString& window) { return ask({QStringLiteral("texts"), window}); }
    QString text(const QString& target) { return see(target)["text"].toString(); }
    bool shows(const QString& target) { return see(target)["shows"].toBool(); }

    static void until(const QString& what, const std::function<bool()>& condition) {
        for (const QDeadlineTimer deadline(patience); !condition(); QThread::msleep(10))
            if (deadline.hasExpired())
                fail("waited in vain for " + what);
    }
    [[noreturn]] static void fail(const QString& what) { throw std::runtime_error(what.toStdString()); }

protected:
    /// The environment, whether inherited or added ("NAME=value"), names the hand's plug-in.
    explicit RunningProgram(const QString& path, const QStringList& environment = {})
        : executable(path), environment_(environment) {}
    ~RunningProgram() {
        process_.kill();
        process_.waitForFinished();
    }

private:
    static constexpr int patience = 60000; // ms

    QStringList environment_;
    QTemporaryDir place_;
    QProcess process_;
    QLocalServer server_;
    QLocalSocket* hand_ = nullptr; ///< the server's
};
