#include "cards/mdiScheda.h"
#include "core/CopieArchivio.h"
#include "core/Main.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "desktop/frmSplash.h"
#include "platform/host/Application.h"
#include "platform/host/Settings.h"
#include "support/FakeDisplay.h"
#include "support/Pictures.h"
#include "support/RecordsTest.h"

#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

class TestMain : public RecordsTest {
    Q_OBJECT

    FakeDisplay display_{1280};

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
        Main();
        QVERIFY(!frmSplash::esiste() && Principale::comune().isVisible());
        QVERIFY(mdiScheda::comune().isLoaded() && !mdiScheda::comune().isVisible() &&
                !variabiliGlobali::inChiusura);
        QCOMPARE(QSettings(host::settingsFile(), QSettings::IniFormat).value(u"Path"_s).toString(),
                 program().folder());
        QCOMPARE(
            log().join(u'|'),
            u" **** Application START - Quiver-Deck versione %1|Execute - INSERT INTO Parametri (parametro, "
            "valore) VALUES ('CAMBIO_RISOLUZIONE', '1') |Risoluzione 1280x600| **** Application END"_s.arg(
                host::versionText()));
    }

    /// The road of a good answer is the start's.
    void declinedCopyLeavesTheStore() {
        CopieArchivio().proponi(); // no box for a good store
        const QString archivio = program().store();
        const auto clock = [] { return QDateTime(QDate(2026, 11, 22), QTime(22, 30)); };
        QCOMPARE(store::Backups(archivio, program().folder() + u"/backup"_s, clock).run(),
                 store::Backups::Outcome::Copied);
        QVERIFY(QFile::resize(archivio, 5000));
        boxes().expectBeginning(Icon::Exclamation,
                                u"L’archivio «splash.ps» manca o è danneggiato.\n\nLa copia di sicurezza più "
                                "recente in buono stato è del 22/11/2026 alle 22:30."_s,
                                host::Answer::No);
        CopieArchivio().proponi();
        QCOMPARE(QFileInfo(archivio).size(), 5000);
    }
};

QUIVERDECK_TEST(TestMain)
#include "test_main.moc"
