#include "cards/mdiScheda.h"
#include "core/Guida.h"
#include "core/Main.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "desktop/frmSplash.h"
#include "platform/host/Application.h"
#include "platform/host/Settings.h"
#include "platform/toolkit/ProgressBar.h"
#include "support/FakeDisplay.h"
#include "support/FormPage.h"
#include "support/Pictures.h"
#include "support/RecordsTest.h"

#include <QFile>
#include <QSettings>

using namespace Qt::StringLiterals;

class TestMain : public RecordsTest {
    Q_OBJECT

    FakeDisplay display_{1280};
    QString splash_; ///< how it was when it went

public:
    bool eventFilter(QObject* splash, QEvent* event) override {
        if (event->type() == QEvent::Hide) {
            const auto* bar = splash->findChild<toolkit::ProgressBar*>();
            const bool hidden = Principale::esiste() && !Principale::comune().isVisible();
            splash_ = u"%1/%2 %3"_s.arg(bar->value()).arg(bar->maximum()).arg(hidden);
        }
        return false;
    }

private Q_SLOTS:
    void init() {
        RecordsTest::init();
        variabiliGlobali::inChiusura = true;
    }
    void cleanup() {
        variabiliGlobali::inChiusura = true; // or the shell would stay
        toolkit::Form::destroyAll();
        RecordsTest::cleanup();
    }

    void startsInOrder() {
        givePictures(program());
        frmSplash::comune().installEventFilter(this);
        Main();
        QCOMPARE(splash_, u"5/5 1"_s); // four figures
        QVERIFY(!frmSplash::esiste() && Principale::comune().isVisible());
        QVERIFY(mdiScheda::comune().isLoaded() && !mdiScheda::comune().isVisible() &&
                !variabiliGlobali::inChiusura);
        QCOMPARE(guida::file, program().folder() + u"\\HELP\\HELP.hlp"_s);
        QCOMPARE(QSettings(host::settingsFile(), QSettings::IniFormat).value(u"Path"_s).toString(),
                 program().folder());
        QVERIFY(QFile::exists(program().settingsFolder() + u"/Quiver-Deck.ini"_s));
        QCOMPARE(
            log().join(u'|'),
            u" **** Application START - Quiver-Deck versione %1|Execute - INSERT INTO Parametri (parametro, "
            "valore) VALUES ('CAMBIO_RISOLUZIONE', '1') |Risoluzione 1280x600| **** Application END"_s.arg(
                host::versionText()));
    }

    void failureLeavesEverythingAsItStands() {
        QFile::remove(program().store());
        // The counter is looked up, counted and stored; then the pictures are missing.
        for (const QString& box : {u"Impossibile aprire l’archivio"_s, u"Impossibile aprire l’archivio"_s,
                                   u"14-Impossibile aprire l’archivio"_s, u"File non trovato"_s})
            boxes().expectBeginning(Icon::None, box);
        Main();
        QVERIFY(frmSplash::comune().isVisible() && !Principale::esiste());
        QVERIFY(log().first().startsWith(u" **** Application START"_s) &&
                log().last() == u"Risoluzione 1280x600"_s);
        QTest::keyClick(&frmSplash::comune(), Qt::Key_Escape);
        QVERIFY(!frmSplash::esiste());
    }
};

QUIVERDECK_TEST(TestMain)
#include "test_main.moc"
