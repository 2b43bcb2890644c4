#include "Tour.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int dragSteps = 12; // moves of one drag: the toolkit wants more than one

} // namespace

Tour::Tour(const QString& folder, QString to)
    : RunningProgram(folder + u"/quiverdeck"_s, QProcessEnvironment::systemEnvironment()),
      pictures(std::move(to)) {
    QDir(pictures).mkpath(u"finestre"_s);
}

void Tour::run(const QString& program, const QStringList& arguments) {
    if (QProcess::execute(program, arguments) != 0)
        fail(program + u' ' + arguments.join(u' '));
}

QJsonObject Tour::where(const QString& target) {
    QJsonObject place;
    until(target + u" to be seen"_s, [&] { // two looks agree: a window manager moves what has just come up
        const QJsonObject last = std::exchange(place, see(target));
        return place == last && place["shows"].toBool();
    });
    return place;
}

void Tour::click(const QString& target) {
    drag(target, 0, 0);
}

void Tour::drag(const QString& from, const QString& to) {
    const QJsonObject start = where(from);
    const QJsonObject end = where(to);
    drag(from, end["x"].toInt() - start["x"].toInt(), end["y"].toInt() - start["y"].toInt());
}

void Tour::drag(const QString& from, int dx, int dy) {
    const QJsonObject start = where(from);
    const auto moveTo = [&](int step) {
        run(u"xdotool"_s,
            {u"mousemove"_s, u"--sync"_s, QString::number(start["x"].toInt() + dx * step / dragSteps),
             QString::number(start["y"].toInt() + dy * step / dragSteps)});
    };
    moveTo(0);
    run(u"xdotool"_s, {u"mousedown"_s, u"1"_s});
    for (int step = 1; step <= dragSteps && (dx != 0 || dy != 0); ++step) {
        moveTo(step);
        see(from); // the program has taken the move
    }
    run(u"xdotool"_s, {u"mouseup"_s, u"1"_s});
}

void Tour::key(const QString& keys, const QString& name) {
    run(u"xdotool"_s, {u"key"_s, keys});
    window(name);
}

void Tour::fill(const QString& target, const QString& text) {
    click(target);
    until(target + u" to have the focus"_s, [&] { return see(target)["focus"].toBool(); });
    run(u"xdotool"_s, {u"key"_s, u"ctrl+a"_s, u"type"_s, u"--delay"_s, u"8"_s, text});
    reads(target, text.right(4));
}

void Tour::reads(const QString& target, const QString& text) {
    until(target + u" to read "_s + text, [&] { return this->text(target).contains(text); });
}

void Tour::window(const QString& name) {
    until(u"the window "_s + name, [&] { return see(name)["active"].toBool(); });
}

void Tour::go(const QString& target, const QString& name, const QString& picture) {
    click(target);
    window(name);
    shot(picture);
}

void Tour::menu(const QString& title, const QString& item, const QString& name, const QString& picture) {
    click(title);
    where(item);
    shot(picture);
    go(item, name);
}

void Tour::box(const QString& text, const QString& button, const QString& picture) {
    reads(u"messageBox"_s, text);
    until(u"the box's focus"_s, [&] { return see(u"messageBox"_s)["focus"].toBool(); });
    shot(picture);
    click(u"messageBox#button:"_s + button);
    until(u"the box to close"_s, [&] { return !this->text(u"messageBox"_s).contains(text); });
}

QString Tour::print(const QString& name, const QString& file, const QString& picture) {
    const QString pdf = u"%1/%2.pdf"_s.arg(pictures, file);
    go(name + u"/Stampa"_s, u"printerDialog"_s, picture);
    reads(u"filename"_s, u".pdf"_s); // is proposed
    fill(u"filename"_s, pdf);
    click(u"printerDialog#button:Stampa"_s);
    until(u"the PDF"_s, [&] { return QFileInfo(pdf).size() > 0; });
    window(name);
    return pdf;
}

void Tour::shot(const QString& name, const QStringList& portraits) {
    if (name.isEmpty())
        return;
    QThread::msleep(150); // the server draws what the program has sent
    const QString file = u"%1/%2-%3.png"_s.arg(pictures).arg(++shots_, 2, 10, QChar(u'0')).arg(name);
    run(u"import"_s, {u"-window"_s, u"root"_s, file});
    for (const QString& window : portraits)
        run(u"convert"_s, {file, u"-crop"_s, see(window)["area"].toString(), u"+repage"_s,
                           pictures + u"/finestre/"_s + window + u".png"_s});
}

void Tour::check(bool holds, const QString& what) {
    if (!holds)
        fail(u"not so: "_s + what);
}

void Tour::fail(const QString& what) {
    QProcess::execute(u"import"_s, {u"-window"_s, u"root"_s, pictures + u"/fallito.png"_s});
    RunningProgram::fail(what);
}
