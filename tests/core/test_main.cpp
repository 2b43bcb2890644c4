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
#include "support/RecordsTest.h"

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

class TestMain : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        RecordsTest::init();
        variabiliGlobali::inChiusura = true;
        guida::file.clear();
    }
    void cleanup() {
        variabiliGlobali::inChiusura = true; // or the shell would stay
        toolkit::Form::destroyAll();
        RecordsTest::cleanup();
    }

    void startsInOrder() {
        givePictures(program());
        const SplashWatch splash;
        Main();
        QVERIFY(splash.full && splash.mainHidden && !frmSplash::esiste());
        QVERIFY(Principale::comune().isVisible());
        QVERIFY(mdiScheda::comune().isLoaded() && !mdiScheda::comune().isVisible());
        QVERIFY(!variabiliGlobali::inChiusura);
        QCOMPARE(guida::file, program().folder() + u"\\HELP\\HELP.hlp"_s);
        QCOMPARE(host::readSetting(u"General"_s, u"Path"_s), program().folder());
        QCOMPARE(
            log(),
            QStringList(
                {u" **** Application START - Quiver-Deck versione "_s + host::versionText(),
                 u"Execute - INSERT INTO Parametri (parametro, valore) VALUES ('CAMBIO_RISOLUZIONE', '1') "_s,
                 u"Risoluzione 1280x800"_s, u" **** Application END"_s}));
        // A second start appends.
        toolkit::Form::destroyAll();
        Main();
        QCOMPARE(log().size(), 9); // the counter's look-up is logged the second time
        QCOMPARE(log().last(), u" **** Application END"_s);
    }

    void failureLeavesEverythingAsItStands() {
        boxes().expectBeginning(Icon::None, u"File non trovato"_s); // no pictures
        Main();
        QVERIFY(frmSplash::comune().isVisible());
        QVERIFY(!Principale::esiste());
        QCOMPARE(log().last(), u"Risoluzione 1280x800"_s);
        QTest::keyClick(&frmSplash::comune(), Qt::Key_Escape);
        QVERIFY(!frmSplash::esiste());
    }

    void missingStoreIsLoggedAndTold() {
        QFile::remove(program().store());
        // The counter is looked up, counted and stored; then the pictures are missing.
        for (const auto& box : {u"Impossibile aprire l’archivio"_s, u"Impossibile aprire l’archivio"_s,
                                u"14-Impossibile aprire l’archivio"_s, u"File non trovato"_s})
            boxes().expectBeginning(Icon::None, box);
        Main();
        QVERIFY(log().first().startsWith(u" **** Application START"_s));
    }

    void logThatCannotBeWritten() {
        QVERIFY(QDir().mkdir(program().folder() + u"/log.txt"_s));
        boxes().expectBeginning(Icon::None, u"Impossibile scrivere"_s);
        Main();
        QVERIFY(!frmSplash::esiste()); // it failed before any window
    }

private:
    WideDisplay display_;
};

QUIVERDECK_TEST(TestMain)
#include "test_main.moc"
