#include "support/Files.h"
#include "support/Pictures.h"

#include <QMap>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int actsInCheck = 500;
constexpr int actsInLong = 5000;         ///< for each seed
constexpr int actsBetweenFailures = 120; ///< of the power

const bool isLong = qEnvironmentVariableIsSet("QUIVERDECK_LONG");
const bool isReplay = qEnvironmentVariableIsSet("QUIVERDECK_ACTS"); ///< of a part of the acts

/// Something in every list of the program, and files to stumble over.
void furnish(const ScratchProgram& p) {
    p.sql(u"INSERT INTO muscoli VALUES ('PET','Pettorali','Grande pettorale')"_s);
    givePictures(p);
    for (int figure = 5; figure <= 12; ++figure)
        addFigure(p, figure, figure, figure % 2 == 0 ? u"QUA"_s : u"PET"_s,
                  u"Q/%1.JPG"_s.arg(figure, 3, 10, QChar(u'0')));
    for (int n = 0; n < 5; ++n)
        givePicture(p, u"avvertenze/posa%1.JPG"_s.arg(n), Qt::white);
    givePicture(p, u"../logo grande.bmp"_s, Qt::white, {3000, 900});
    writeFile(p.folder() + u"/rotta.jpg"_s, "\xff\xd8\xff\xe0 no picture");
    writeFile(p.folder() + u"/HELP/HELP.hlp"_s,
              "<html><body>\n<!--capitolo Primo-->\n<!--pagina benvenuto|Benvenuti-->\n"
              "<h1>Benvenuti</h1><a href=\"http://example.org\">fuori</a>\n<!--fine-->\n</body></html>\n");
    const QString manual = p.folder() + u"/HELP/manuale"_s;
    writeFile(manual, "#!/bin/sh\nexit 0\n");
    QFile::setPermissions(manual, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    p.sql(uR"(
        CREATE TEMP TABLE n AS WITH RECURSIVE n(i) AS (SELECT 1 UNION SELECT i+1 FROM n WHERE i<40)
            SELECT i FROM n;
        INSERT INTO utenti SELECT i,'Nome'||i,'Cognome'||i,'1980-05-0'||i,'F','nota' FROM n WHERE i<=5;
        INSERT INTO schede (id_utente,Istruttore,PeriodoDal,PeriodoAl,id_cat,FreqAllen,GGAllen,Obiettivo,note)
            SELECT 2+i%4,'Anna','2026-01-02','2026-01-23',1+i%3,3,'001010100','Forza','bere' FROM n WHERE i<=10;
        INSERT INTO schedeModello SELECT 100+i,i,'Mio '||i,0,'nota' FROM n WHERE i<=3;
        INSERT INTO EserciziModello
            SELECT 100+i,1,100+i,2,'30 sec','30 Hz','Low',1,20,3,'Statico','','0','prima' FROM n WHERE i<=3;
        INSERT INTO Esercizi (NProg,ID_Scheda,ID_Fig,Durata,Frequenza,Ampiezza,RecuperoMin,RecuperoSec,Serie,
                              Modalita,Peso,isLibero,Note)
            SELECT i,1+i%7,1+i%12,'45s','40Hz','H',1,20,3,'Combinata','5 kg',0,'riga '||i FROM n)"_s);
}

/// What one start of the program came to.
struct Run {
    QStringList acts;
    QStringList wrong;
    QString end; ///< the last kind of line
};

} // namespace

class TestMonkey : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyEndIsNamedAndLosesNothing_data() {
        QTest::addColumn<int>("seed");
        const int chosen = qEnvironmentVariableIntValue("QUIVERDECK_SEED");
        for (int seed = std::max(chosen, 1), last = chosen == 0 && isLong ? 4 : seed; seed <= last; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

    void everyEndIsNamedAndLosesNothing() {
        QFETCH(const int, seed);
        const int acts = isReplay ? qEnvironmentVariableIntValue("QUIVERDECK_ACTS")
                         : isLong ? actsInLong
                                  : actsInCheck;
        const ScratchProgram gym;
        furnish(gym);
        int done = 0;
        for (bool looked = false; !looked;) { // the last start only looks whether the card comes back
            looked = done == acts;
            const Run run = start(gym, seed, done, std::min(acts, done + actsBetweenFailures));
            done += static_cast<int>(run.acts.size());
            const QStringList told =
                QStringList(u"run again with QUIVERDECK_SEED=%1 QUIVERDECK_ACTS=%2"_s.arg(seed).arg(done)) +
                run.wrong + run.acts.mid(run.acts.size() - 20);
            QVERIFY2(run.wrong.isEmpty(), qPrintable(told.join(u'\n')));
        }
    }

    void cleanupTestCase() {
        for (auto one = told_.begin(); one != told_.end(); ++one)
            qInfo("%6d  %s", one.value(), qPrintable(one.key()));
        QString names =
            u"Principale mdiScheda SchedaIntestazione SchedaCorpo SchedaSelezioneFIGURE UtentiSelezione"_s;
        if (isLong)
            names +=
                u" UtentiNuovo SchedeSelezione SchedeMODELLOSelezione SchedeMODELLONuova FinestraGuida"
                " SchedaIntestazioneMODELLO SchedaPreviewFigura PrinterCanvas PrinterDaNonFare SchedaCorpo2"
                " frmPersonalizza frmAbout frmDisplay ResolutionConfirm zfrmTestDB zTESTDragAndDrop"
                " zTestTreeViewImage"_s;
        QStringList windows = names.split(u' ');
        windows.removeIf([this](const QString& window) { return told_.contains(u"acts in "_s + window); });
        if (!isReplay)
            QCOMPARE(windows.join(u", never seen: "_s), QString());
    }

private:
    Run start(const ScratchProgram& gym, int seed, int first, int last) {
        const QString folder = gym.folder();
        // The first starts meet a small screen, which is asked about.
        const QString screen =
            uR"({"screens":[{"name":"s","x":0,"y":0,"width":%1,"height":%2,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})"_s;
        writeFile(folder + u"/schermo.json"_s,
                  (first == 0 ? screen.arg(800).arg(600) : screen.arg(1280).arg(800)).toUtf8());
        QProcess program;
        program.setWorkingDirectory(folder);
        program.start(u"/usr/bin/env"_s,
                      {u"-u"_s, u"DISPLAY"_s, u"QT_QPA_PLATFORM=offscreen:configfile=schermo.json"_s,
                       u"QT_SCALE_FACTOR=1"_s, u"QT_HASH_SEED=0"_s, u"TZ=UTC"_s, u"HOME="_s + folder,
                       u"PATH="_s + folder, u"ASAN_OPTIONS=detect_leaks=0:handle_abort=1:exitcode=99"_s,
                       u"UBSAN_OPTIONS=print_stacktrace=1:exitcode=99"_s, QStringLiteral(MONKEY_PROGRAM),
                       folder, gym.settingsFolder(), QString::number(seed), QString::number(first),
                       QString::number(last)});
        program.waitForFinished(-1); // one that hangs aborts

        Run run;
        const QString journal = QString::fromUtf8(program.readAllStandardOutput());
        for (const QString& line : journal.split(u'\n', Qt::SkipEmptyParts)) {
            run.end = line.section(u'\t', 0, 0);
            if (run.end == u"act")
                run.acts += line;
            if (run.end == u"wrong")
                run.wrong += line;
            ++told_[run.end == u"act" ? u"acts in "_s + line.section(u'\t', 2).section(u'/', 0, 0) : line];
        }
        const QByteArray said = program.readAllStandardError();
        const bool ended = program.exitStatus() == QProcess::NormalExit &&
                           QStringList({u"end"_s, u"off"_s, u"fatal"_s}).contains(run.end) &&
                           program.exitCode() == (run.end == u"fatal" ? 1 : 0);
        if (!ended || said.contains("Sanitizer") || said.contains("runtime error"))
            run.wrong +=
                u"end '%1', status %2:\n%3"_s.arg(run.end)
                    .arg(program.exitCode())
                    .arg(QString::fromUtf8(said.mid(std::max<qsizetype>(0, said.indexOf("ERROR: ")), 6000)));
        if (run.end == u"end" && QFile::exists(folder + u"/splash.ps.aperta"_s))
            run.wrong += u"the program ended and left a side file"_s;
        return run;
    }

    QMap<QString, int> told_; ///< all but the acts
};

QTEST_GUILESS_MAIN(TestMonkey)
#include "test_monkey.moc"
