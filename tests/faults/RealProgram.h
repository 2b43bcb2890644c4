#pragma once

#include "support/ScratchProgram.h"

#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>

#include <QTest>

#include <functional>
#include <memory>
#include <stdexcept>

/// The real program in a scratch folder of its own, offscreen, with a hand inside (see Hand) that acts and
/// reads. What does not come within a minute, or a program that is gone, throws std::runtime_error.
class RealProgram {
public:
    /// The folder holds the executables, a store of a few rows with the athlete Anna Rossi, and small
    /// pictures.
    RealProgram();
    ~RealProgram();
    RealProgram(const RealProgram&) = delete;
    RealProgram& operator=(const RealProgram&) = delete;

    const ScratchProgram& scratch() const { return scratch_; }
    QString file(const QString& name) const { return folder + u'/' + name; }
    /// A folder for the home, and what else the test needs; the user's data folder is "data/quiverdeck" in
    /// it.
    QString home() const { return home_.path(); }

    /// Where the executable stands.
    QString folder;
    /// Runs in the new process before the program: limits and rights.
    std::function<void()> before;

    void start();
    /// SIGKILL.
    void kill();
    /// Waits for the end; gives the exit code, -1 for a crash.
    int waitForEnd();

    /// Puts the marker and what an installed copy needs beside the executable: home()/data/quiverdeck is the
    /// program's directory from the next start on.
    void installCopy() const;

    bool shows(const QString& target);
    QString text(const QString& target);
    void waitFor(const QString& target);
    QJsonObject texts(const QString& window);
    /// Waits until the target shows, then acts.
    void press(const QString& target);
    void write(const QString& target, const QString& text);
    /// Asks for the act and waits for nothing.
    void send(const QString& request);
    /// Waits for a message box, whose text must begin so, and presses the button; gives its text.
    QString answer(const QString& beginning, const QString& button = QStringLiteral("OK"));

    /// Opens the editor on a new card of Anna Rossi.
    void openNewCard();

private:
    QJsonObject ask(const QString& request);
    QByteArray readLine();

    ScratchProgram scratch_;
    QTemporaryDir home_;
    std::unique_ptr<QProcess> process_;
    QLocalSocket socket_;
};

/// Plays a scene; what a program refuses fails the test.
inline void play(const std::function<void()>& scene) {
    try {
        scene();
    } catch (const std::runtime_error& error) {
        QFAIL(error.what());
    }
}
