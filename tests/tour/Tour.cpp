#include "Tour.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

#include <utility>

namespace {
constexpr int patience = 30000; // ms a traveller waits for anything
constexpr int glance = 20;      // ms between two looks
constexpr int dragSteps = 12;   // moves of one drag: the toolkit wants more than one
} // namespace

Tour::Tour(QString folder, QString pictures) : folder_(std::move(folder)), pictures_(std::move(pictures)) {}

Tour::~Tour() {
    if (program.state() != QProcess::NotRunning) {
        program.kill();
        program.waitForFinished();
    }
}

void Tour::start() {
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.setWorkingDirectory("/"); // the program finds its folder by itself
    program.start(folder_ + "/quiverdeck", {});
    if (!program.waitForStarted())
        throw TourError("the program does not start: " + program.errorString());
    const QString socket = qEnvironmentVariable("QUIVERDECK_TOUR_SOCKET");
    const QDeadlineTimer deadline(3 * patience);
    while (!deadline.hasExpired()) {
        probe.connectToServer(socket);
        if (probe.waitForConnected(200))
            return;
        if (program.state() == QProcess::NotRunning)
            break;
        QThread::msleep(glance);
    }
    throw TourError("the program is not reached");
}

int Tour::waitForEnd() {
    if (!program.waitForFinished(patience))
        throw TourError("the program does not end");
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

void Tour::kill() {
    program.kill();
    if (!program.waitForFinished(patience))
        throw TourError("the program survives");
    probe.abort();
}

int Tour::startAgain() {
    QProcess second;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_GENERIC_PLUGINS"); // the probe stays with the first
    second.setProcessEnvironment(environment);
    second.setProcessChannelMode(QProcess::ForwardedChannels);
    second.start(folder_ + "/quiverdeck", {});
    if (!second.waitForFinished(patience))
        throw TourError("the second program stays");
    return second.exitStatus() == QProcess::NormalExit ? second.exitCode() : -1;
}

QJsonObject Tour::ask(const QString& question) {
    if (probe.state() != QLocalSocket::ConnectedState)
        throw TourError("the program is gone while asking: " + question);
    probe.write(question.toUtf8() + '\n');
    QByteArray line;
    const QDeadlineTimer deadline(patience);
    while (!line.endsWith('\n')) {
        if (deadline.hasExpired() || (!probe.bytesAvailable() && !probe.waitForReadyRead(patience)))
            throw TourError("no answer to: " + question);
        line += probe.readLine();
    }
    return QJsonDocument::fromJson(line).object();
}

QJsonObject Tour::see(const QString& target) {
    return ask("find " + target);
}

QJsonObject Tour::where(const QString& target) {
    // Two looks must agree: a window manager moves what has just come up.
    QJsonObject place;
    until(target + " to be seen", [&] {
        const QJsonObject before = std::exchange(place, see(target));
        return place["found"].toBool() && place["visible"].toBool() && place["enabled"].toBool(true) &&
               place["x"] == before["x"] && place["y"] == before["y"];
    });
    return place;
}

QString Tour::text(const QString& target) {
    return see(target)["text"].toString();
}

bool Tour::visible(const QString& target) {
    const QJsonObject place = see(target);
    return place["found"].toBool() && place["visible"].toBool();
}

void Tour::xdotool(const QStringList& arguments) {
    if (QProcess::execute("xdotool", arguments) != 0)
        throw TourError("xdotool " + arguments.join(' '));
}

void Tour::moveTo(const QJsonObject& place) {
    xdotool(
        {"mousemove", "--sync", QString::number(place["x"].toInt()), QString::number(place["y"].toInt())});
}

void Tour::click(const QString& target) {
    moveTo(where(target));
    xdotool({"click", "1"});
}

void Tour::doubleClick(const QString& target) {
    moveTo(where(target));
    xdotool({"click", "--repeat", "2", "--delay", "60", "1"});
}

void Tour::drag(const QString& from, const QString& to) {
    const QJsonObject start = where(from);
    const QJsonObject end = where(to);
    const int dx = end["x"].toInt() - start["x"].toInt();
    const int dy = end["y"].toInt() - start["y"].toInt();
    dragBy(from, dx, dy);
}

void Tour::dragBy(const QString& from, int dx, int dy) {
    const QJsonObject start = where(from);
    const int x = start["x"].toInt();
    const int y = start["y"].toInt();
    moveTo(start);
    xdotool({"mousedown", "1"});
    for (int step = 1; step <= dragSteps; ++step) {
        xdotool({"mousemove", "--sync", QString::number(x + dx * step / dragSteps),
                 QString::number(y + dy * step / dragSteps)});
        see(from); // the program has taken the move
    }
    xdotool({"mouseup", "1"});
    see(from);
}

void Tour::type(const QString& text) {
    xdotool({"type", "--delay", "8", text});
}

void Tour::key(const QString& keys) {
    xdotool({"key", keys});
}

void Tour::fill(const QString& target, const QString& text) {
    click(target);
    until(target + " to have the focus", [&] { return see(target)["focus"].toBool(); });
    key("ctrl+a");
    type(text);
    until(target + " to read " + text, [&] { return this->text(target).endsWith(text.right(4)); });
}

void Tour::box(const QString& text, const QString& button, const QString& picture) {
    until("the box '" + text + "'", [&] {
        const QJsonObject box = see("box");
        return box["text"].toString().contains(text) && box["focus"].toBool();
    });
    if (!picture.isEmpty())
        shot(picture);
    click("box#button:" + button);
    until("the box to close", [&] { return !see("box")["text"].toString().contains(text); });
}

void Tour::window(const QString& name) {
    until("the window " + name, [&] {
        const QJsonArray list = ask("windows")["windows"].toArray();
        for (const QJsonValue& entry : list)
            if (entry["name"].toString() == name && entry["active"].toBool())
                return true;
        return false;
    });
}

void Tour::until(const QString& what, const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired()) {
            shot("fallito");
            throw TourError("waited in vain for " + what + "\n" +
                            QString::fromUtf8(QJsonDocument(ask("windows")).toJson()));
        }
        QThread::msleep(glance);
    }
}

void Tour::shot(const QString& name) {
    QThread::msleep(150); // the server draws what the program has sent
    const QString file = QString("%1/%2-%3.png").arg(pictures_).arg(++shots, 2, 10, QChar('0')).arg(name);
    if (QProcess::execute("import", {"-window", "root", file}) != 0)
        throw TourError("no picture: " + file);
}

void Tour::portrait(const QString& name) {
    const QJsonObject place = where(name);
    QThread::msleep(150);
    QDir(pictures_).mkpath("finestre");
    const QString part = QString("%1x%2+%3+%4")
                             .arg(place["width"].toInt())
                             .arg(place["height"].toInt())
                             .arg(place["left"].toInt())
                             .arg(place["top"].toInt());
    if (QProcess::execute("import", {"-window", "root", "-crop", part, "+repage",
                                     pictures_ + "/finestre/" + name + ".png"}) != 0)
        throw TourError("no picture of " + name);
}

void Tour::check(bool holds, const QString& what) {
    if (!holds) {
        shot("fallito");
        throw TourError("not so: " + what);
    }
}
