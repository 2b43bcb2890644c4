#include "core/db.h"
#include "faults/AllRows.h"
#include "faults/Moments.h"

#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // ms

/// What the driver has said: the statements that began, the last of which may not have returned.
struct Said {
    QStringList begun;
    int returned = 0;
};

} // namespace

class TestRecordsKilled : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyStatementThatReturnedIsHeld_data() { moments::rows(moments::isLong() ? 200 : 60); }

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
        Said said;
        kill(program, seed, said);
        QVERIFY(!QTest::currentTestFailed());
        model.sql(said.begun.first(said.returned).join(u';'));

        // The program's own road comes first: it meets what the killed one left.
        const auto check = db::comune().getRs(u"PRAGMA integrity_check"_s);
        QCOMPARE(check.Fields(0).Value().toText(), u"ok"_s);
        const QStringList held = allRows(program);
        if (held != allRows(model) && said.begun.size() > said.returned)
            model.sql(said.begun.last()); // the one under way
        QCOMPARE(held, allRows(model));
        const auto logged = program.log().filter(u"Execute - "_s).size();
        QVERIFY(logged == said.begun.size() || logged == said.begun.size() + 1);
        QVERIFY(db::comune().Execute(u"UPDATE palestra SET nome = 'si lavora'"_s));
    }

private:
    static void kill(const ScratchProgram& program, unsigned seed, Said& said) {
        std::mt19937 random(seed);
        const int statements = 1 + static_cast<int>(random() % 40);
        QProcess driver;
        driver.start(QStringLiteral(RECORDS_DRIVER), {program.folder(), QString::number(seed)});
        QByteArray output;
        while (output.count('+') < statements) {
            QVERIFY2(driver.waitForReadyRead(patience), output.constData());
            output += driver.readAll();
        }
        moments::pass(random, 3000);
        driver.kill();
        QVERIFY(driver.waitForFinished(patience));
        QCOMPARE(driver.exitStatus(), QProcess::CrashExit);
        output += driver.readAll();
        const auto lines = output.split('\n');
        for (const QByteArray& line : lines)
            if (line.startsWith('+'))
                said.begun += QString::fromUtf8(line.mid(1));
            else if (line == "-")
                ++said.returned;
            else
                QVERIFY2(line.isEmpty(), line.constData());
        QVERIFY(said.returned == said.begun.size() || said.returned == said.begun.size() - 1);
    }
};

QTEST_GUILESS_MAIN(TestRecordsKilled)
#include "test_records_killed.moc"
