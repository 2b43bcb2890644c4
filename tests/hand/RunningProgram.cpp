#include "hand/RunningProgram.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QLocalServer>
#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // ms
constexpr int glance = 10;      // ms between two looks

} // namespace

RunningProgram::RunningProgram(QString path, const QProcessEnvironment& environment)
    : executable(std::move(path)), environment_(environment) {}

RunningProgram::~RunningProgram() {
    process_.kill();
    process_.waitForFinished();
}

void RunningProgram::start() {
    const QString socket = environment_.value(u"QUIVERDECK_HAND"_s);
    QLocalServer::removeServer(socket);
    process_.setProcessEnvironment(environment_);
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    process_.setChildProcessModifier(before);
    process_.setWorkingDirectory(u"/"_s); // the program finds its folder by itself
    process_.start(executable, {});
    const QDeadlineTimer deadline(patience);
    while (socket_.state() != QLocalSocket::ConnectedState) {
        socket_.abort();
        socket_.connectToServer(socket);
        if (process_.state() == QProcess::NotRunning || process_.waitForFinished(glance))
            fail(u"the program ended while it started, with %1"_s.arg(process_.exitCode()));
        if (deadline.hasExpired())
            fail(u"the program is not reached"_s);
    }
}

void RunningProgram::kill() {
    process_.kill();
    waitForEnd();
}

int RunningProgram::waitForEnd() {
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(patience))
        fail(u"the program does not end"_s);
    socket_.abort();
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

QJsonObject RunningProgram::ask(const QStringList& request, bool waits) {
    socket_.write(request.join(u'\t').toUtf8() + '\n');
    socket_.waitForBytesWritten(patience);
    while (waits && !socket_.canReadLine()) {
        if (!socket_.waitForReadyRead(patience))
            fail(u"the program does not answer: "_s + request.join(u' '));
    }
    return QJsonDocument::fromJson(socket_.readLine()).object();
}

void RunningProgram::until(const QString& what, const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired())
            fail(u"waited in vain for "_s + what);
        QThread::msleep(glance);
    }
}

void RunningProgram::fail(const QString& what) {
    throw std::runtime_error(what.toStdString());
}
