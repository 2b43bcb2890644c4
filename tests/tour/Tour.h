#pragma once

#include "hand/RunningProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QPoint>

#include <utility>

/// A traveller at the real program: a real pointer, real keys, and questions to the hand about where things
/// are. Every act waits until its target is seen and can be used.
class Tour : public RunningProgram {
public:
    /// `folder` is the program's folder, `to` takes the screenshots.
    Tour(const QString& folder, const QString& to)
        : RunningProgram(folder + QStringLiteral("/quiverdeck")), pictures(to) {
        QDir(pictures).mkpath(QStringLiteral("finestre"));
    }

    const QString pictures;

    /// Where a target is, once it is there and does not move any more.
    QPoint where(const QString& target) {
        QJsonObject place;
        until(target, [&] { // two looks agree: a window manager moves what has just come up
            const QJsonObject last = std::exchange(place, see(target));
            return place == last && place["shows"].toBool();
        });
        return {place["x"].toInt(), place["y"].toInt()};
    }
    void click(const QString& target) { drag(target, target); }
    /// Presses on `from`, moves in small steps, and lets go on `to`.
    void drag(const QString& from, const QString& to) {
        const QPoint start = where(from);
        const QPoint way = from == to ? QPoint() : where(to) - start;
        constexpr int steps = 12; // the toolkit wants more than one; a click takes none
        for (int step = 0; step <= (from == to ? 0 : steps); ++step) {
            const QPoint at = start + way * step / steps;
            pointer(QStringLiteral("mousemove --sync %1 %2").arg(at.x()).arg(at.y()));
            if (step == 0)
                pointer("mousedown 1");
            see(from); // the program has taken the move
        }
        pointer("mouseup 1");
    }
    /// Clicks into each field, selects what stands there, and types.
    void fill(const QList<std::pair<QString, QString>>& fields) {
        for (const auto& each : fields) {
            const QString& field = each.first;
            click(field);
            until("the focus of " + field, [&] { return see(field)["focus"].toBool(); });
            pointer("key ctrl+a type --delay 8", {each.second});
            reads(field, each.second.right(4));
        }
    }

    /// Waits until a target's text contains `text`.
    void reads(const QString& target, const QString& text) {
        until(target + " to read " + text, [&] { return this->text(target).contains(text); });
    }
    /// Waits until the window of that object name is the active one, and takes its picture.
    void window(const QString& name, const QString& picture = {}, const QStringList& portraits = {}) {
        until("the window " + name, [&] { return see(name)["active"].toBool(); });
        shot(picture, portraits);
    }
    /// Clicks and waits for the window that comes.
    void go(const QString& target, const QString& name, const QString& picture = {},
            const QStringList& portraits = {}) {
        click(target);
        window(name, picture, portraits);
    }
    /// The same by a menu, with a picture of that.
    void menu(const QString& title, const QString& item, const QString& name, const QString& picture) {
        click(title);
        where(item);
        shot(picture);
        go(item, name);
    }
    /// Presses keys and waits for a window.
    void key(const QString& keys, const QString& name, const QString& picture = {}) {
        pointer("key " + keys);
        window(name, picture);
    }
    /// Waits for a message box of that text and presses `button`.
    void box(const QString& said, const QString& button, const QString& picture = {}) {
        const QString box = QStringLiteral("messageBox");
        reads(box, said);
        until("the box's focus", [&] { return see(box)["focus"].toBool(); });
        shot(picture);
        click(box + "#button:" + button);
        until("the box to close", [&] { return !text(box).contains(said); });
    }
    /// Prints from a window into a PDF beside the pictures; gives its path.
    QString print(const QString& name, const QString& file, const QString& picture = {}) {
        QString pdf = QStringLiteral("%1/%2.pdf").arg(pictures, file);
        go(name + "/Stampa", QStringLiteral("printerDialog"), picture);
        reads(QStringLiteral("filename"), QStringLiteral(".pdf")); // is proposed
        fill({{QStringLiteral("filename"), pdf}});
        click(QStringLiteral("printerDialog#button:Stampa"));
        until("the PDF", [&] { return QFileInfo(pdf).size() > 0; });
        window(name);
        return pdf;
    }

    /// Keeps a picture of the screen, if it has a name, and of windows and pages alone as finestre/NAME.png.
    void shot(const QString& name, const QStringList& portraits = {}) {
        if (name.isEmpty())
            return;
        QThread::msleep(150); // the server draws what the program has sent
        const QString file =
            QStringLiteral("%1/%2-%3.png").arg(pictures).arg(++shots_, 2, 10, QChar(u'0')).arg(name);
        run("import -window root", {file});
        for (const QString& page : portraits)
            run("convert", {file, "-crop", see(page)["area"].toString(), "+repage",
                            QStringLiteral("%1/finestre/%2.png").arg(pictures, page)});
    }
    /// Runs another program, which must succeed; what holds blanks stands in `more`.
    static void run(const QString& command, const QStringList& more = {}) {
        QStringList words = command.split(u' ');
        const QString program = words.takeFirst();
        if (QProcess::execute(program, words + more) != 0)
            fail(command + u' ' + more.join(u' '));
    }

private:
    /// Moves pointer and keys.
    static void pointer(const QString& words, const QStringList& more = {}) { run("xdotool " + words, more); }

    int shots_ = 0;
};
