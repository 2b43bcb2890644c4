#include "cards/mdiScheda.h"
#include "core/Guida.h"
#include "core/Main.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "desktop/frmSplash.h"
#include "platform/host/Application.h"
#include "platform/host/Display.h"
#include "platform/host/Settings.h"
#include "platform/toolkit/ProgressBar.h"
#include "support/FormPage.h"
#include "support/Pictures.h"
#include "support/ScriptedBoxes.h"
#include "support/ToolkitTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class WideDisplay : public host::Display {
public:
    WideDisplay() { host::setDisplay(this); }
    ~WideDisplay() override { host::setDisplay(nullptr); }
    bool read(host::DisplayMode& mode) override {
        mode.width = 1280;
        mode.height = 800;
        return true;
    }
    bool set(const host::DisplayMode& /*mode*/) override { return false; }
};

/// Looks at the splash window's bar when the splash goes.
class SplashWatch : public QObject {
public:
    SplashWatch() { frmSplash::comune().installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Hide) {
            const auto* bar = watched->findChild<toolkit::ProgressBar*>();
            full = bar->value() == bar->maximum() && bar->maximum() == 5; // four figures
            mainHidden = Principale::esiste() && !Principale::comune().isVisible();
        }
        return false;
    }
    bool full = false;
    bool mainHidden = false;
};

} // namespace

class TestMain : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
        variabiliGlobali::inChiusura = true;
        guida::file.clear();
    }
    void cleanup() {
        variabiliGlobali::inChiusura = true; // or the shell would stay
        toolkit::Form::destroyAll();
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void startsInOrder() {
        givePictures(*program_);
        const SplashWatch splash;
        Main();
        QVERIFY(splash.full);
        QVERIFY(splash.mainHidden);
        QVERIFY(!frmSplash::esiste());
        QVERIFY(Principale::comune().isVisible());
        QVERIFY(mdiScheda::comune().isLoaded());
        QVERIFY(!mdiScheda::comune().isVisible());
        QVERIFY(!variabiliGlobali::inChiusura);
        QCOMPARE(guida::file, program_->folder() + u"\\HELP\\HELP.hlp"_s);
        QCOMPARE(host::readSetting(u"General"_s, u"Path"_s), program_->folder());
        QCOMPARE(
            program_->log(),
            QStringList(
                {u" **** Application START - Quiver-Deck versione "_s + host::versionText(),
                 u"Execute - INSERT INTO Parametri (parametro, valore) VALUES ('CAMBIO_RISOLUZIONE', '1') "_s,
                 u"Risoluzione 1280x800"_s, u" **** Application END"_s}));
        // A second start appends.
        toolkit::Form::destroyAll();
        Main();
        QCOMPARE(program_->log().size(), 9); // the counter's look-up is logged the second time
        QCOMPARE(program_->log().last(), u" **** Application END"_s);
    }

    void failureLeavesEverythingAsItStands() {
        boxes_->expectBeginning(host::Icon::None, u"File non trovato"_s); // no pictures
        Main();
        QVERIFY(frmSplash::comune().isVisible());
        QVERIFY(!Principale::esiste());
        QCOMPARE(program_->log().last(), u"Risoluzione 1280x800"_s);
        QTest::keyClick(&frmSplash::comune(), Qt::Key_Escape);
        QVERIFY(!frmSplash::esiste());
    }

    void missingStoreIsLoggedAndTold() {
        QFile::remove(program_->store());
        boxes_->expectBeginning(host::Icon::None,
                                u"Impossibile aprire l’archivio"_s); // looking the counter up
        boxes_->expectBeginning(host::Icon::None, u"Impossibile aprire l’archivio"_s); // storing it
        boxes_->expectBeginning(host::Icon::None,
                                u"14-Impossibile aprire l’archivio"_s); // the same, its INSERT
        boxes_->expectBeginning(host::Icon::None, u"File non trovato"_s);
        Main();
        QVERIFY(program_->log().first().startsWith(u" **** Application START"_s));
    }

    void logThatCannotBeWritten() {
        QVERIFY(QDir().mkdir(program_->folder() + u"/log.txt"_s));
        boxes_->expectBeginning(host::Icon::None, u"Impossibile scrivere"_s);
        Main();
        QVERIFY(!frmSplash::esiste()); // it failed before any window
    }

private:
    WideDisplay display_;
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QUIVERDECK_WINDOW_TEST_MAIN(TestMain)
#include "test_main.moc"
