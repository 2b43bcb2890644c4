#include "cards/mdiScheda.h"
#include "core/Main.h"
#include "core/variabiliGlobali.h"
#include "figures/AreeCorpo.h"
#include "figures/BodyMap.h"
#include "platform/runtime/Error.h"
#include "printing/PrinterCanvas.h"
#include "printing/PrinterDaNonFare.h"
#include "support/Files.h"
#include "support/WindowTest.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

using Open = std::function<void()>;

/// Every picture that a window loads, missing or damaged one by one: the error names it, or the window shows.
class TestPictureFaults : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void eachIsNamed_data() {
        QTest::addColumn<QString>("files"); // below images
        QTest::addColumn<Open>("open");
        QTest::newRow("start") << u"(Q|G)/0.*|FolderXP.*"_s << Open(&Main);
        QTest::newRow("editor") << u"Q/001.*|BodyMap/corpo.*"_s << Open([] { mdiScheda::comune().mostra(); });
        QTest::newRow("map") << u"BodyMap/Corpo_.*"_s << Open([] {
            BodyMap map(u"mappa"_s, nullptr);
            map.onLoad();
            for (const char* code : codiciMuscoli())
                map.changeMuscle(QLatin1String(code));
        });
        QTest::newRow("sheet") << u"Q/001.*|logo.*"_s << Open([] { PrinterCanvas::comune().show(); });
        QTest::newRow("warnings") << u"avvertenze/.*"_s << Open([] { PrinterDaNonFare::comune().show(); });
    }
    void eachIsNamed() {
        QFETCH(const QString, files);
        QFETCH(const Open, open);
        for (const QChar n : u"01234"_s)
            givePicture(program(), u"avvertenze/posa"_s + n + u".JPG"_s, Qt::red);
        givePicture(program(), u"logo.JPG"_s, Qt::red);
        sql(u"INSERT INTO Parametri VALUES ('CAMBIO_RISOLUZIONE','8');" // no question any more
            "UPDATE palestra SET logo = '\\images\\logo.JPG';"
            "INSERT INTO utenti VALUES (1,'Anna','Rossi',NULL,'F','');"
            "INSERT INTO schede VALUES (1,1,'','2026-11-02','2026-11-30',2,2,'001010100','','');"
            "INSERT INTO Esercizi (NProg,ID_Scheda,ID_Fig,Durata,Frequenza,Ampiezza,isLibero)"
            " VALUES (1,1,1,'30s','30Hz','L',0);");
        QCOMPARE(errorsOf(open), QStringList());
        const QString images = program().folder() + u"/images/"_s;
        const QRegularExpression wanted(u"^%1(%2)$"_s.arg(QRegularExpression::escape(images), files));
        QStringList paths;
        for (QDirIterator each(images, QDir::Files, QDirIterator::Subdirectories); each.hasNext();)
            paths += each.next();
        int met = 0;
        for (const QString& path : paths.filter(wanted)) {
            const QByteArray good = readFile(path);
            const QByteArray bad[] = {
                {}, QByteArray(good.size(), '\0'), "nessuna immagine", good.left(good.size() / 2)};
            for (int damage = -2; damage < 4; ++damage) { // the first two: gone, and a folder in its place
                QVERIFY(QFile::remove(path) && (damage != -1 || QDir().mkdir(path)));
                if (damage >= 0)
                    writeFile(path, bad[damage]);
                const QString error = errorsOf(open).join(u'\n');
                // The sheet leaves out what it cannot show; half a picture may still be one.
                const bool named = error.contains(QFileInfo(path).fileName(), Qt::CaseInsensitive);
                const bool shown = error.isEmpty() && (damage == 3 || QTest::currentDataTag() == "sheet"_L1);
                QVERIFY2((named && !error.contains(u'\n')) || shown,
                         qPrintable(u"%1, damage %2: "_s.arg(path).arg(damage) + error));
                met += named;
                QDir().rmdir(path);
                writeFile(path, good);
            }
        }
        QVERIFY(met > 0);
        QCOMPARE(errorsOf(open), QStringList());
    }

private:
    /// What is raised, reported or shown in a box while the windows open; they are closed again.
    QStringList errorsOf(const Open& open) {
        QStringList told;
        boxes().onUnexpected = [&told](const QString& text) { told += text; };
        const ExpectedFatal fatal;
        idUtenteSelezionato = idSchedaSelezionata = 1;
        try {
            open();
            QCoreApplication::processEvents();
        } catch (const runtime::Error& error) {
            told += error.description();
        }
        if (fatal.count > 0)
            told += fatal.description;
        static_cast<void>(boxes().satisfied()); // starts anew
        inChiusura = true;                      // or the shell would stay
        toolkit::Form::destroyAll();
        toolkit::Application::purge();
        inChiusura = false;
        return told;
    }
};

QUIVERDECK_TEST(TestPictureFaults)
#include "test_picture_faults.moc"
