#include "cards/salvaComeModello.h"
#include "cards/scheda.h"
#include "faults/Faults.h"
#include "platform/host/ProgramDirectory.h"
#include "support/ScriptedBoxes.h"
#include "templates/SchedaModello.h"

#include <QProcess>
#include <QThread>

#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString actor = u"--acts"_s;

/// Writes, rewrites or deletes a card, or copies a template one way or the other as the editor does.
void act(std::mt19937& random) {
    const auto upTo = [&random](unsigned count) { return static_cast<qint32>(random() % count); };
    const auto word = [&random] { return u"parola %1"_s.arg(random()); };
    const auto cards = db::comune().getRs(
        u"SELECT id_scheda FROM schede ORDER BY id_scheda * %1 % 101 LIMIT 1"_s.arg(upTo(100)));
    const qint32 key = cards.RecordCount() == 0 ? 0 : cards(u"id_scheda"_s).toInt32();
    scheda card;
    const int what = upTo(key == 0 ? 2 : 5);
    if (what == 2) {
        card.Elimina(key);
        return;
    }
    SchedaModello model;
    if (what == 0) {
        model.carica(1);
        model.caricaEsercizi();
        model.travasaTo(card, false);
    } else if (what > 2) {
        card.carica(key);
        card.caricaEsercizi();
    }
    card.id_utente = 1;
    card.categoria = u"Forza"_s;
    card.PeriodoDal = u"01/02/2026"_s;
    card.note = word();
    if (what == 4) { // the template is stored empty first
        model.descrizione = word();
        model.categoria = card.categoria;
        model.save();
        salvaComeModello(card, model);
        return;
    }
    if (card.esercizi->Count() > 0)
        card.EliminaEsercizio(1);
    for (int lines = 1 + upTo(4); lines > 0; --lines) {
        auto line = std::make_shared<Esercizio>();
        line->id_fig = 1 + upTo(4);
        line->note = word();
        card.esercizi->Add(line);
    }
    card.save();
}

/// Acts in that program's folder until it is killed. A message box ends it: nothing may fail.
void actUntilKilled(const QString& folder, unsigned seed) {
    ScriptedBoxes boxes;
    boxes.onUnexpected = [](const QString& text) {
        std::fputs(qPrintable(text), stderr);
        std::_Exit(EXIT_FAILURE);
    };
    host::setProgramDirectory(folder);
    db::comune().dbName = u"splash.ps"_s;
    std::mt19937 random(seed);
    for (int acts = 0; acts < 1000; ++acts) // some more than it lives for
        act(random);
}

} // namespace

class TestRecordsKilled : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyStatementThatReturnedIsHeld_data() { faults::seeds(faults::isLong ? 200 : 60); }

    void everyStatementThatReturnedIsHeld() {
        QFETCH(const unsigned, seed);
        const ScratchProgram model; // what must be held
        const ScratchProgram program;
        for (const ScratchProgram* one : {&model, &program})
            one->sql(u"INSERT INTO utenti (nome, cognome) VALUES ('Anna','Rossi')"_s);
        std::mt19937 random(seed);
        const auto moment = 1 + random() % 40;
        constexpr int patience = 60000; // ms
        const auto begun = [&program] { return program.log().filter(u"Execute - "_s); };
        QProcess driver;
        driver.setProcessChannelMode(QProcess::ForwardedChannels);
        driver.start(QCoreApplication::applicationFilePath(),
                     {actor, program.folder(), QString::number(seed)});
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

/// The test itself; or, as a child of it, who acts: "--acts FOLDER SEED".
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == actor)
        actUntilKilled(arguments[2], arguments[3].toUInt());
    TestRecordsKilled test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_records_killed.moc"
