#include "athletes/utente.h"
#include "support/Errors.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList values(const utente& u) {
    return {QString::number(u.id_utente),        u.nome,  u.cognome,
            u.dataNascita.toString(Qt::ISODate), u.sesso, u.note};
}

} // namespace

class TestUtente : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
    }
    void cleanup() {
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void roundTrip_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stored");
        QTest::newRow("apostrophe") << u"D'Amico"_s << u"D`Amico"_s;
        QTest::newRow("SQL") << u"DELETE * FROM x #1/1/2005#"_s << u"DELETE * FROM x #1/1/2005#"_s;
        QTest::newRow("a broken statement")
            << u"'); DROP TABLE utenti; --"_s << u"`); DROP TABLE utenti; --"_s;
        QTest::newRow("accents, quotes, emoji") << u"Ésè \"x\" 🏋"_s << u"Ésè \"x\" 🏋"_s;
        QTest::newRow("brackets") << u"[Note] #"_s << u"[Note] #"_s;
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("the longest") << QString(32767, u'è') << QString(32767, u'è');
    }
    void roundTrip() {
        QFETCH(QString, name);
        QFETCH(QString, stored);
        utente athlete;
        athlete.nome = name;
        athlete.cognome = name + u"1"_s.left(name.size() < 32767 ? 1 : 0);
        athlete.dataNascita = QDate(1970, 2, 1);
        athlete.sesso = u"F"_s;
        athlete.note = name;
        QCOMPARE(athlete.save(), 1);
        QCOMPARE(athlete.id_utente, 0);
        utente read;
        QVERIFY(read.carica(1));
        const QString surname = stored + u"1"_s.left(name.size() < 32767 ? 1 : 0);
        QCOMPARE(values(read), QStringList({u"1"_s, stored, surname, u"1970-02-01"_s, u"F"_s, stored}));
        QCOMPARE(read.raccoglitore.id_utente, 1);

        read.nome = u"Nuovo"_s;
        read.cognome = u"Altro"_s;
        read.dataNascita = QDate(1999, 12, 31);
        read.sesso = u"M"_s;
        read.note = u"è"_s;
        QCOMPARE(read.save(), 0);
        utente again;
        QVERIFY(again.carica(1));
        QCOMPARE(values(again), values(read));
    }

    void statements() {
        utente athlete;
        athlete.nome = u"Ada"_s;
        athlete.cognome = u"D'Amico"_s;
        athlete.sesso = u"F"_s;
        athlete.save();
        athlete.id_utente = 1;
        athlete.dataNascita = QDate(1970, 2, 1);
        athlete.save();
        QCOMPARE(program_->log(),
                 QStringList(
                     {u"Execute - INSERT INTO utenti (nome,cognome,dataNascita,sesso,[Note]) VALUES "
                      "('Ada','D`Amico',null,'F','')"_s,
                      u"Execute - UPDATE utenti SET nome= 'Ada',cognome = 'D`Amico',sesso= 'F',dataNascita = "
                      "#02/01/1970#,[Note]='' WHERE id_utente=1"_s}));
    }

    void secondSaveOfANewOneInsertsAgain() {
        utente athlete;
        athlete.nome = u"Ada"_s;
        athlete.cognome = u"Rossi"_s;
        QCOMPARE(athlete.save(), 1);
        QCOMPARE(athlete.save(), 2);
        // Never set: Null in the store, its stand-in when read.
        QCOMPARE(program_->rows(u"SELECT dataNascita FROM utenti"_s), QStringList({u"NULL"_s, u"NULL"_s}));
        QVERIFY(athlete.carica(2));
        QCOMPARE(athlete.dataNascita, QDate(1980, 1, 1));
    }

    void tooLongANote() {
        utente athlete;
        athlete.note = QString(32768, u'x');
        QCOMPARE(errorOf([&] { return athlete.save(); }), 6);
        QVERIFY(program_->rows(u"SELECT * FROM utenti"_s).isEmpty());
    }

    void failedInsertGivesTheHighestKey() {
        program_->sql(u"INSERT INTO utenti (id_utente,nome,cognome) VALUES (30,'a','b')"_s);
        utente athlete;
        athlete.sesso = u"'"_s;
        boxes_->expectBeginning(host::Icon::None, u"1-"_s);
        QCOMPARE(athlete.save(), 30);
    }

    void missingRowLeavesTheFields() {
        utente athlete;
        athlete.nome = u"Ada"_s;
        athlete.dataNascita = QDate(1970, 2, 1);
        const QStringList before = values(athlete);
        boxes_->expect(host::Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!athlete.carica(9));
        QCOMPARE(values(athlete), before);
    }

    void nullNameIsAnError() {
        program_->sql(u"INSERT INTO utenti (nome) VALUES ('Ada')"_s);
        utente athlete;
        QCOMPARE(errorOf([&] { return athlete.carica(1); }), 94);
    }

    void deletionTakesTheCardsAlong() {
        program_->sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi'),('Eva','Bianchi');"
                      "INSERT INTO schede (id_utente,id_cat,Istruttore,FreqAllen) VALUES "
                      "(1,1,'x',3),(2,1,'x',3),(1,0,'x',3);"
                      "INSERT INTO Esercizi (ID_Scheda) VALUES (1),(2),(3)"_s);
        utente athlete;
        QVERIFY(athlete.Elimina(1)); // and no box: the view knows these cards no more
        QCOMPARE(program_->rows(u"SELECT id_scheda FROM schede"_s), QStringList({u"2"_s}));
        QCOMPARE(program_->rows(u"SELECT ID_Scheda FROM Esercizi"_s), QStringList({u"2"_s}));
        QCOMPARE(program_->log(), QStringList({u"Execute - DELETE * FROM utenti WHERE id_utente=1"_s,
                                               u"Execute - DELETE * FROM schede WHERE id_scheda=1"_s,
                                               u"Execute - DELETE * FROM schede WHERE id_scheda=3"_s}));
    }

    void rowGoesEvenIfTheCardsCannot() {
        program_->sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi');"
                      "INSERT INTO schede (id_utente,id_cat) VALUES (1,1);"
                      "CREATE TRIGGER t BEFORE DELETE ON schede BEGIN SELECT RAISE(ABORT,'no'); END"_s);
        boxes_->expectBeginning(host::Icon::None, u"1811-"_s); // SQLITE_CONSTRAINT_TRIGGER
        utente athlete;
        QVERIFY(athlete.Elimina(1));
        QVERIFY(program_->rows(u"SELECT * FROM utenti"_s).isEmpty());
        QCOMPARE(program_->rows(u"SELECT COUNT(*) FROM schede"_s), QStringList({u"1"_s}));
    }

    void addingACard() {
        program_->sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi')"_s);
        utente athlete;
        QVERIFY(athlete.carica(1));
        const auto card = std::make_shared<scheda>();
        QVERIFY(!athlete.Add(card));
        QCOMPARE(athlete.raccoglitore.schede->Item(1), card);
        QCOMPARE(program_->rows(u"SELECT id_scheda, id_utente FROM schede"_s), QStringList({u"1|1"_s}));
    }

private:
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QTEST_GUILESS_MAIN(TestUtente)
#include "test_utente.moc"
