#pragma once

#include "hand/RunningProgram.h"
#include "support/ScratchProgram.h"

#include <QTest>

/// The real program offscreen, in a scratch folder of its own with a store of a few rows, the athlete Anna
/// Rossi and small pictures.
class RealProgram : public ScratchProgram, public RunningProgram {
public:
    RealProgram();
    /// A file beside the executable.
    QString file(const QString& name) const { return folder() + u'/' + name; }
    /// A folder of settings and the like; an installed copy's data folder is "data/quiverdeck" in it.
    QString home() const { return settingsFolder(); }
    /// Puts the marker and what an installed copy needs beside the executable.
    void installCopy() const;

    /// Waits until the target can be used, then asks the hand to act.
    void act(const QStringList& request);
    void press(const QString& target) { act({QStringLiteral("press"), target}); }
    void write(const QString& target, const QString& text) { act({QStringLiteral("write"), target, text}); }
    void waitFor(const QString& target);
    /// Waits for a message box, whose text must begin so, and presses the button; gives its text.
    QString answer(const QString& beginning, const QString& button = QStringLiteral("OK"));
    /// Opens the editor on a new card of Anna Rossi.
    void openNewCard();
    /// Leaves the program from its main window; that must succeed.
    void leave();
};

/// Plays a scene; what a program refuses fails the test.
inline void play(const std::function<void()>& scene) {
    try {
        scene();
    } catch (const std::runtime_error& error) {
        QFAIL(error.what());
    }
}
