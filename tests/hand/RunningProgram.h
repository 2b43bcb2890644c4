#pragma once

#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>

#include <functional>
#include <stdexcept>

/// The real program in a process of its own, with a hand inside that tells and acts (see Hand, also for the
/// targets). What does not come within a minute, or a program that is gone, throws std::runtime_error.
class RunningProgram {
public:
    virtual ~RunningProgram();

    const QString executable;
    /// Runs in the new process before the program: limits and rights.
    std::function<void()> before;

    void start();
    /// Ends it at once, as a power cut would; `start` starts another one.
    void kill();
    /// Waits for the end; gives the exit code, -1 for a crash.
    int waitForEnd();

    /// Asks the hand and waits for its answer, or for nothing.
    QJsonObject ask(const QStringList& request, bool waits = true);

    QJsonObject see(const QString& target) { return ask({QStringLiteral("see"), target}); }
    QJsonObject texts(const QString& window) { return ask({QStringLiteral("texts"), window}); }
    QString text(const QString& target) { return see(target)["text"].toString(); }
    bool shows(const QString& target) { return see(target)["shows"].toBool(); }
    void until(const QString& what, const std::function<bool()>& condition);

protected:
    /// The environment names the hand's plug-in and its socket, QUIVERDECK_HAND.
    RunningProgram(QString path, const QProcessEnvironment& environment);
    [[noreturn]] virtual void fail(const QString& what);

private:
    QProcessEnvironment environment_;
    QProcess process_;
    QLocalSocket socket_;
};
