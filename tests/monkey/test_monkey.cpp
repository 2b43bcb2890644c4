#include "support/Pictures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int actsInCheck = 500;
constexpr int actsInLong = 5000;         ///< for each seed
constexpr int actsBetweenFailures = 120; ///< of the power
constexpr qint64 hang = 120000;          ///< milliseconds without an act or any other sign

int setting(const char* name, int otherwise) {
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : otherwise;
}

bool isLong() {
    return qEnvironmentVariableIsSet("QUIVERDECK_LONG");
}

/// A program's folder with something in every list, and files to stumble over.
class Gym {
public:
    Gym() {
        const ScratchProgram& p = program_;
        p.sql(u"INSERT INTO muscoli VALUES ('PET','Pettorali','Grande pettorale')"_s);
        givePictures(p);
        for (int figure = 5; figure <= 12; ++figure)
            addFigure(p, figure, figure, figure % 2 == 0 ? u"QUA"_s : u"PET"_s,
                      u"Q/%1.JPG"_s.arg(figure, 3, 10, QChar(u'0')));
        for (int n = 0; n < 5; ++n)
            givePicture(p, u"avvertenze/posa%1.JPG"_s.arg(n), Qt::white);
        write(u"rotta.jpg"_s, QByteArray("\xff\xd8\xff\xe0 no picture"));
        QImage(3000, 900, QImage::Format_RGB32).save(p.folder() + u"/logo grande.bmp"_s);
        QDir().mkpath(p.folder() + u"/HELP"_s);
        write(u"HELP/HELP.hlp"_s,
              "<html><body>\n<!--capitolo Primo-->\n<!--pagina benvenuto|Benvenuti-->\n"
              "<h1>Benvenuti</h1><a href=\"http://example.org\">fuori</a>\n<!--fine-->\n</body></html>\n");
        write(u"HELP/manuale"_s, "#!/bin/sh\nexit 0\n");
        QFile::setPermissions(p.folder() + u"/HELP/manuale"_s,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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
    const ScratchProgram& program() const { return program_; }

private:
    void write(const QString& name, const QByteArray& content) const {
        QFile file(program_.folder() + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    ScratchProgram program_;
};

/// What one start of the program came to.
struct Run {
    int acts = 0;
    QStringList last; ///< acts, the latest at the end
    QStringList wrong;
    QString end;
};

} // namespace

class TestMonkey : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyEndIsNamedAndLosesNothing_data() {
        QTest::addColumn<int>("seed");
        QTest::addColumn<int>("acts");
        const int acts = setting("QUIVERDECK_ACTS", isLong() ? actsInLong : actsInCheck);
        if (const int seed = setting("QUIVERDECK_SEED", 0); seed != 0 || !isLong()) {
            QTest::addRow("seed %d", std::max(seed, 1)) << std::max(seed, 1) << acts;
            return;
        }
        for (int seed = 1; seed <= 4; ++seed)
            QTest::addRow("seed %d", seed) << seed << acts;
    }

    void everyEndIsNamedAndLosesNothing() {
        QFETCH(int, seed);
        QFETCH(int, acts);
        const Gym gym;
        // The last start does nothing: it only looks whether the card comes back.
        for (int done = 0, looked = 0; looked == 0;) {
            looked = done == acts ? 1 : 0;
            const Run run = start(gym, seed, done, std::min(acts, done + actsBetweenFailures));
            done += run.acts;
            if (!run.wrong.isEmpty())
                QFAIL(qPrintable(
                    u"act %1, run again with QUIVERDECK_SEED=%2 QUIVERDECK_ACTS=%3\n%4\nthe last acts:\n%5"_s
                        .arg(done - 1)
                        .arg(seed)
                        .arg(done)
                        .arg(run.wrong.join(u'\n'), run.last.join(u'\n'))));
        }
    }

    void cleanupTestCase() {
        report(u"acts by window"_s, acts_);
        report(u"acts by kind"_s, kinds_);
        report(u"starts that saw a window"_s, forms_);
        report(u"ends"_s, ends_);
        if (qEnvironmentVariableIsSet("QUIVERDECK_ACTS"))
            return; // a part of the acts visits a part of the windows
        QString names =
            u"Principale mdiScheda SchedaIntestazione SchedaCorpo SchedaSelezioneFIGURE UtentiSelezione"_s;
        if (isLong())
            names +=
                u" UtentiNuovo SchedeSelezione SchedeMODELLOSelezione SchedeMODELLONuova "
                u"SchedaIntestazioneMODELLO"
                " SchedaPreviewFigura PrinterCanvas PrinterDaNonFare frmPersonalizza frmAbout frmDisplay"
                " FinestraGuida ResolutionConfirm SchedaCorpo2 zfrmTestDB zTESTDragAndDrop zTestTreeViewImage"_s;
        QStringList windows = names.split(u' ');
        windows.removeIf([this](const QString& window) { return forms_.contains(window); });
        QCOMPARE(windows.join(u", never seen: "_s), QString());
    }

private:
    Run start(const Gym& gym, int seed, int first, int last) {
        const QString folder = gym.program().folder();
        const QString journal = folder + u"/atti.txt"_s;
        QFile::remove(journal);
        // The first starts meet a small screen, which is asked about.
        QFile screens(folder + u"/schermo.json"_s);
        screens.open(QIODevice::WriteOnly);
        screens.write(
            QStringLiteral(R"({"screens":[{"name":"s","x":0,"y":0,"width":%1,"height":%2,"logicalDpi":96,)"
                           R"("logicalBaseDpi":96,"dpr":1}]})")
                .arg(first == 0 ? 800 : 1280)
                .arg(first == 0 ? 600 : 800)
                .toUtf8());
        screens.close();

        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"DISPLAY"_s);
        for (const auto& [name, value] :
             {std::pair(u"QT_QPA_PLATFORM"_s, u"offscreen:configfile=schermo.json"_s),
              {u"QT_SCALE_FACTOR"_s, u"1"_s},
              {u"QT_HASH_SEED"_s, u"0"_s},
              {u"HOME"_s, folder},
              {u"PATH"_s, folder},
              {u"TZ"_s, u"UTC"_s},
              {u"ASAN_OPTIONS"_s, u"detect_leaks=0:handle_abort=1:exitcode=99"_s},
              {u"UBSAN_OPTIONS"_s, u"print_stacktrace=1:exitcode=99"_s}})
            environment.insert(name, value);
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(MONKEY_PROGRAM),
                      {folder, gym.program().settingsFolder(), journal, QString::number(seed),
                       QString::number(first), QString::number(last)});
        QElapsedTimer quiet;
        quiet.start();
        Run run;
        for (qint64 told = 0; !program.waitForFinished(200) && program.state() != QProcess::NotRunning;) {
            if (const qint64 now = QFile(journal).size(); now != told) {
                told = now;
                quiet.start();
            } else if (quiet.elapsed() > hang) {
                run.wrong += u"no act for two minutes"_s;
                ::kill(static_cast<pid_t>(program.processId()), SIGABRT); // its stack comes along
                program.waitForFinished();
            }
        }
        read(journal, run);
        judge(program, folder, run);
        return run;
    }

    void read(const QString& journal, Run& run) {
        QFile file(journal);
        file.open(QIODevice::ReadOnly);
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
            const QString kind = line.section(u'\t', 0, 0);
            const QString rest = line.section(u'\t', 1);
            if (kind == u"act") {
                ++run.acts;
                ++acts_[rest.section(u'\t', 1, 1)];
                ++kinds_[rest.section(u'\t', 2).section(u' ', 0, 0)];
                run.last += rest;
            } else if (kind == u"form") {
                ++forms_[rest];
            } else if (kind == u"wrong" || kind == u"qt") {
                run.wrong += kind + u": "_s + rest;
            } else if (kind == u"asked" || kind == u"restored") {
                ++ends_[kind == u"asked" ? u"asked for its card: "_s + rest : u"card as it was"_s];
            } else {
                run.end = kind;
                ++ends_[kind == u"fatal" ? u"error "_s + rest
                        : kind == u"off" ? u"power off"_s
                                         : u"closed"_s];
            }
            if (run.last.size() > 20)
                run.last.removeFirst();
        }
    }

    static void judge(QProcess& program, const QString& folder, Run& run) {
        const QByteArray said = program.readAll();
        const qsizetype sanitizer = said.indexOf("ERROR: ");
        const qsizetype from = sanitizer < 0 ? std::max<qsizetype>(0, said.size() - 6000) : sanitizer;
        const bool normal = program.exitStatus() == QProcess::NormalExit;
        const int expected = run.end == u"fatal" ? 1 : 0;
        if (run.end.isEmpty() || !normal || program.exitCode() != expected || said.contains("Sanitizer") ||
            said.contains("runtime error"))
            run.wrong +=
                u"end '%1', status %2%3:\n%4"_s.arg(run.end)
                    .arg(program.exitCode())
                    .arg(normal ? QString() : u" by a signal"_s, QString::fromUtf8(said.mid(from, 6000)));
        if (run.end == u"end" && QFile::exists(folder + u"/splash.ps.aperta"_s))
            run.wrong += u"the program ended and left a side file"_s;
    }

    static void report(const QString& title, const QMap<QString, int>& counts) {
        std::printf("%s:\n", qPrintable(title));
        for (auto one = counts.begin(); one != counts.end(); ++one)
            std::printf("  %6d  %s\n", one.value(), qPrintable(one.key()));
        std::fflush(stdout);
    }

    QMap<QString, int> acts_, kinds_, forms_, ends_;
};

int main(int argc, char** argv) {
    qputenv("QTEST_FUNCTION_TIMEOUT",
            "7200000"); // for the long form; a program that hangs is told after two
    const QCoreApplication application(argc, argv);
    TestMonkey test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_monkey.moc"
