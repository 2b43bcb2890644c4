#include "faults/RealProgram.h"

#include "support/Pictures.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QThread>

#include <filesystem>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // ms
constexpr int glance = 5;       // ms between two looks

[[noreturn]] void fail(const QString& what) {
    throw std::runtime_error(what.toStdString());
}

/// The same file under another name, so that it finds its folder there.
void place(const char* from, const QString& to) {
    std::error_code failed;
    std::filesystem::create_hard_link(from, to.toStdString(), failed);
    if (failed)
        std::filesystem::copy_file(from, to.toStdString());
}

} // namespace

RealProgram::RealProgram() {
    folder = scratch_.folder();
    scratch_.sql(u"INSERT INTO utenti (nome, cognome, sesso) VALUES ('Anna', 'Rossi', 'F')"_s);
    givePictures(scratch_);
    place(PROGRAM, file(u"quiverdeck"_s));
    place(BACKUP, file(u"quiverdeck-backup"_s));
    for (const QString& name : {u"plugins/generic"_s, u"config"_s, u"data"_s, u"run"_s})
        QDir(home()).mkpath(name);
    QFile::setPermissions(home() + u"/run"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile screen(home() + u"/screen.json"_s);
    if (!screen.open(QIODevice::WriteOnly) ||
        screen.write(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1280, "height": 1024,
            "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})") < 0)
        fail(u"no screen"_s);
    place(HAND, home() + u"/plugins/generic/faulthand.so"_s);
}

void RealProgram::installCopy() const {
    place(RENEWER, file(u"quiverdeck-renew-store"_s));
    QDir(folder).mkpath(u"HELP"_s);
    if (!QFile(file(u"quiverdeck.installed"_s)).open(QIODevice::WriteOnly))
        fail(u"no marker"_s);
}

RealProgram::~RealProgram() {
    if (process_)
        kill();
}

void RealProgram::start() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen:configfile="_s + home() + u"/screen.json"_s);
    environment.insert(u"QT_SCALE_FACTOR"_s, u"1"_s); // the screen is not asked, with a hand of its own
    environment.insert(u"QT_PLUGIN_PATH"_s, home() + u"/plugins"_s);
    environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"faulthand"_s);
    environment.insert(u"QUIVERDECK_HAND"_s, home() + u"/run/hand"_s);
    environment.insert(u"HOME"_s, home());
    environment.insert(u"XDG_CONFIG_HOME"_s, home() + u"/config"_s);
    environment.insert(u"XDG_DATA_HOME"_s, home() + u"/data"_s);
    environment.insert(u"XDG_RUNTIME_DIR"_s, home() + u"/run"_s);
    process_ = std::make_unique<QProcess>();
    process_->setProcessEnvironment(environment);
    process_->setProcessChannelMode(QProcess::ForwardedChannels);
    if (before)
        process_->setChildProcessModifier(before);
    process_->start(file(u"quiverdeck"_s), {});
    if (!process_->waitForStarted(patience))
        fail(u"the program does not start: "_s + process_->errorString());
    const QDeadlineTimer deadline(patience);
    for (;;) {
        socket_.abort();
        socket_.connectToServer(home() + u"/run/hand"_s);
        if (socket_.waitForConnected(patience))
            return;
        if (process_->waitForFinished(glance))
            fail(u"the program ended while it started, with %1"_s.arg(process_->exitCode()));
        if (deadline.hasExpired())
            fail(u"the program is not reached"_s);
    }
}

void RealProgram::kill() {
    process_->kill();
    process_->waitForFinished(patience);
    process_.reset();
    socket_.abort();
}

int RealProgram::waitForEnd() {
    if (!process_->waitForFinished(patience))
        fail(u"the program does not end"_s);
    const int code = process_->exitStatus() == QProcess::NormalExit ? process_->exitCode() : -1;
    process_.reset();
    socket_.abort();
    return code;
}

void RealProgram::send(const QString& request) {
    socket_.write(request.toUtf8() + '\n');
    socket_.waitForBytesWritten(patience);
}

QByteArray RealProgram::readLine() {
    while (!socket_.canReadLine())
        if (!socket_.waitForReadyRead(patience))
            return {};
    return socket_.readLine();
}

QJsonObject RealProgram::ask(const QString& request) {
    send(request);
    const QByteArray line = readLine();
    if (line.isEmpty())
        fail(u"the program does not answer: "_s + request);
    return QJsonDocument::fromJson(line).object();
}

QJsonObject RealProgram::texts(const QString& window) {
    return ask(u"texts "_s + window);
}

QString RealProgram::text(const QString& target) {
    return ask(u"see "_s + target)[u"text"_s].toString();
}

bool RealProgram::shows(const QString& target) {
    const QJsonObject seen = ask(u"see "_s + target);
    return seen[u"shows"].toBool() && seen[u"enabled"].toBool();
}

void RealProgram::waitFor(const QString& target) {
    const QDeadlineTimer deadline(patience);
    while (!shows(target)) {
        if (deadline.hasExpired())
            fail(target + u" does not show; a box says: "_s + text(u"box"_s));
        QThread::msleep(glance);
    }
}

void RealProgram::press(const QString& target) {
    waitFor(target);
    ask(u"press "_s + target);
}

void RealProgram::write(const QString& target, const QString& text) {
    waitFor(target);
    ask(u"write "_s + target + u' ' + text);
}

QString RealProgram::answer(const QString& beginning, const QString& button) {
    waitFor(u"box"_s);
    const QString said = text(u"box"_s);
    if (!said.startsWith(beginning))
        fail(u"a box says: "_s + said);
    press(u"box:"_s + button);
    return said;
}

void RealProgram::openNewCard() {
    press(u"Principale/nuova"_s);
    press(u"UtentiSelezione/seleziona"_s);
    waitFor(u"SchedaCorpo/note_0"_s);
}
