#include "core/db.h"
#include "faults/Faults.h"
#include "platform/host/ProgramDirectory.h"

#include <QProcess>
#include <QThread>

#include <random>

using namespace Qt::StringLiterals;

class TestRecordsKilled : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyStatementThatReturnedIsHeld_data() { faults::seeds(faults::isLong ? 200 : 60); }

    void everyStatementThatReturnedIsHeld() {
        QFETCH(const unsigned, seed);
        const ScratchProgram model; // what must be held
        const ScratchProgram program;
        for (const ScratchProgram* one : {&model, &program})
            one->sql(
                u"INSERT INTO utenti (nome, cognome) VALUES ('Anna','Rossi'),('Ugo','Verdi');"
                "INSERT INTO schede (id_utente, id_cat, Istruttore, FreqAllen) VALUES (1,1,'',3),(2,2,'',3);"
                "INSERT INTO Esercizi (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, Ampiezza, isLibero)"
                " VALUES (1,1,1,'30 sec','30 Hz','Low',0),(1,2,2,'45 sec','','',0),(2,2,3,'','','',0);"_s);

        std::mt19937 random(seed);
        const auto moment = 1 + random() % 40;
        constexpr int patience = 60000; // ms
        const auto begun = [&program] { return program.log().filter(u"Execute - "_s); };
        QProcess driver;
        driver.setProcessChannelMode(QProcess::ForwardedChannels);
        driver.start(QStringLiteral(RECORDS_DRIVER), {program.folder(), QString::number(seed)});
        QTRY_VERIFY_WITH_TIMEOUT(
            begun().size() >= qsizetype(moment) || driver.state() == QProcess::NotRunning, patience);
        QThread::usleep(random() % 3000);
        driver.kill();
        QVERIFY(driver.waitForFinished(patience));
        QCOMPARE(driver.exitStatus(), QProcess::CrashExit);
        QStringList statements = begun().replaceInStrings(u"Execute - "_s, QString());

        // The program's own road comes first: it meets what the killed one left.
        const auto check = db::comune().getRs(u"PRAGMA integrity_check"_s);
        QCOMPARE(check.Fields(0).Value().toText(), u"ok"_s);
        statements.prepend(u"UPDATE palestra SET nome = 'si lavora'"_s);
        QVERIFY(db::comune().Execute(statements.first()));
        const QStringList held = faults::allRows(program);

        // A statement has returned once another one has begun; the last one may have.
        host::setProgramDirectory(model.folder());
        const QString last = statements.takeLast();
        for (const QString& statement : statements)
            QVERIFY(db::comune().Execute(statement));
        if (held != faults::allRows(model))
            QVERIFY(db::comune().Execute(last));
        QCOMPARE(held, faults::allRows(model));
    }
};

QTEST_GUILESS_MAIN(TestRecordsKilled)
#include "test_records_killed.moc"
