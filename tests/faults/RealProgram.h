#pragma once

#include "hand/RunningProgram.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QRegularExpression>
#include <QTest>

#include <filesystem>

/// The real program offscreen, in a scratch folder of its own with a store of a few rows, the athlete Anna
/// Rossi and small pictures.
class RealProgram : public ScratchProgram, public RunningProgram {
public:
    RealProgram()
        : RunningProgram(file(QStringLiteral("quiverdeck")),
                         {"QT_QPA_PLATFORM=offscreen:configfile=" + home() + "/screen.json",
                          "QT_SCALE_FACTOR=1", // the screen is not asked, with a hand of its own
                          "QT_PLUGIN_PATH=" + home() + "/plugins", "QT_QPA_GENERIC_PLUGINS=hand",
                          "HOME=" + home(), "XDG_CONFIG_HOME=" + home() + "/config",
                          "XDG_DATA_HOME=" + home() + "/data", "XDG_RUNTIME_DIR=" + home()}) {
        sql(QStringLiteral("INSERT INTO utenti (nome, cognome, sesso) VALUES ('Anna', 'Rossi', 'F')"));
        givePictures(*this);
        place(PROGRAM, executable);
        place(BACKUP, file(QStringLiteral("quiverdeck-backup")));
        place(HAND, home() + QStringLiteral("/plugins/generic/hand.so"));
        QFile::setPermissions(home(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        writeFile(home() + QStringLiteral("/screen.json"),
                  R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1280, "height": 1024,
                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    }
    /// A file beside the executable.
    QString file(const QString& name) const { return folder() + u'/' + name; }
    void waitFor(const QString& target) {
        until(target, [&] { return shows(target); });
    }
    /// Waits until the target can be used, then asks the hand to act.
    void act(const QStringList& request) {
        waitFor(request[1]);
        ask(request);
    }
    void press(const QString& target) { act({QStringLiteral("press"), target}); }
    void write(const QString& target, const QString& text) { act({QStringLiteral("write"), target, text}); }
    /// Waits for a message box, whose text must begin so but for a number, and presses the button; gives its
    /// text.
    QString answer(const QString& beginning, const QString& button = QStringLiteral("OK")) {
        static const QRegularExpression number(QStringLiteral("^\\d+-"));
        waitFor(QStringLiteral("messageBox"));
        QString said = text(QStringLiteral("messageBox"));
        if (!QString(said).remove(number).startsWith(beginning))
            fail("a box says: " + said);
        press(QStringLiteral("messageBox#button:") + button);
        return said;
    }
    /// Opens the editor on a new card of Anna Rossi.
    void openNewCard() {
        press(QStringLiteral("Principale/nuova"));
        press(QStringLiteral("UtentiSelezione/seleziona"));
        waitFor(QStringLiteral("SchedaCorpo/note_0"));
    }
    /// Leaves the program from its main window; that must succeed.
    void leave() {
        press(QStringLiteral("Principale/esci"));
        if (waitForEnd() != EXIT_SUCCESS)
            fail("the program fails as it ends");
    }

private:
    QString home() const { return settingsFolder(); }
    /// The same file under another name, so that it finds its folder there.
    static void place(const char* from, const QString& to) {
        std::error_code failed;
        std::filesystem::create_directories(std::filesystem::path(to.toStdString()).parent_path());
        std::filesystem::create_hard_link(from, to.toStdString(), failed);
        if (failed)
            std::filesystem::copy_file(from, to.toStdString());
    }
};

/// Plays a scene; what a program refuses fails the test.
inline void play(const std::function<void()>& scene) {
    try {
        scene();
    } catch (const std::runtime_error& error) {
        QFAIL(error.what());
    }
}
