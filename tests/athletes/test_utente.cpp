#include "athletes/utente.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

namespace {

QStringList values(const utente& u) {
    return {QString::number(u.id_utente),        u.nome,  u.cognome,
            u.dataNascita.toString(Qt::ISODate), u.sesso, u.note};
}

} // namespace

class TestUtente : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void roundTrip_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("a broken statement") << u"'); DROP TABLE utenti; --"_s;
        QTest::newRow("SQL, quotes, emoji") << u"DELETE * FROM x #1/1/2005# [è] \"x\" 🏋"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("the longest") << QString(32767, u'è');
    }
    void roundTrip() {
        QFETCH(QString, text);
        const QString stored = QString(text).replace(u'\'', u'`');
        utente athlete;
        athlete.nome = text;
        athlete.cognome = text.left(32766) + u'1';
        athlete.dataNascita = QDate(1970, 2, 1);
        athlete.sesso = u"F"_s;
        athlete.note = text;
        QCOMPARE(athlete.save(), 1);
        QCOMPARE(athlete.id_utente, 0);
        utente read;
        QVERIFY(read.carica(1));
        QCOMPARE(values(read),
                 QStringList({u"1"_s, stored, stored.left(32766) + u'1', u"1970-02-01"_s, u"F"_s, stored}));
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
        QCOMPARE(log(), QStringList({u"Execute - INSERT INTO utenti (nome,cognome,dataNascita,sesso,[Note]) "
                                     "VALUES ('Ada','D`Amico',null,'F','')"_s,
                                     u"Execute - UPDATE utenti SET nome= 'Ada',cognome = 'D`Amico',sesso= "
                                     "'F',dataNascita = #02/01/1970#,[Note]='' WHERE id_utente=1"_s}));
    }

    void secondSaveOfANewOneInsertsAgain() {
        utente athlete;
        athlete.nome = athlete.cognome = u"Ada"_s;
        QCOMPARE(athlete.save(), 1);
        QCOMPARE(athlete.save(), 2);
        // Never set: Null in the store, its stand-in when read.
        QCOMPARE(rows(u"SELECT dataNascita FROM utenti"), u"NULL, NULL"_s);
        QVERIFY(athlete.carica(2));
        QCOMPARE(athlete.dataNascita, QDate(1980, 1, 1));
    }

    void failedInsertGivesTheHighestKey() {
        utente athlete;
        sql(u"INSERT INTO utenti (id_utente,nome,cognome) VALUES (30,'a','b')");
        athlete.sesso = u"'"_s;
        boxes().expectBeginning(Icon::None, u"1-"_s);
        QCOMPARE(athlete.save(), 30); // somebody else's
    }

    void unreadableRowsLeaveTheFields() {
        sql(u"INSERT INTO utenti (nome) VALUES ('Ada')");
        utente athlete;
        athlete.nome = u"Eva"_s;
        const QStringList before = values(athlete);
        boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!athlete.carica(9));
        QCOMPARE(errorOf([&] { return athlete.carica(1); }), 94); // no surname
        QCOMPARE(values(athlete), before);
    }

    void deletionTakesTheCardsAlong() {
        sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi'),('Eva','Bianchi');"
            "INSERT INTO schede (id_utente,id_cat,Istruttore,FreqAllen) VALUES "
            "(1,1,'x',3),(2,1,'x',3),(1,0,'x',3);"
            "INSERT INTO Esercizi (ID_Scheda) VALUES (1),(2),(3)");
        utente athlete;
        QVERIFY(athlete.Elimina(1)); // and no box: the view knows these cards no more
        QCOMPARE(rows(u"SELECT id_scheda FROM schede"), u"2"_s);
        QCOMPARE(rows(u"SELECT ID_Scheda FROM Esercizi"), u"2"_s);
        QCOMPARE(log(), QStringList({u"Execute - DELETE * FROM utenti WHERE id_utente=1"_s,
                                     u"Execute - DELETE * FROM schede WHERE id_scheda=1"_s,
                                     u"Execute - DELETE * FROM schede WHERE id_scheda=3"_s}));
    }

    void rowGoesEvenIfTheCardsCannot() {
        sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi');"
            "INSERT INTO schede (id_utente,id_cat) VALUES (1,1);"
            "CREATE TRIGGER t BEFORE DELETE ON schede BEGIN SELECT RAISE(ABORT,'no'); END");
        boxes().expectBeginning(Icon::None, u"1811-"_s); // SQLITE_CONSTRAINT_TRIGGER
        QVERIFY(utente().Elimina(1));
        QCOMPARE(rows(u"SELECT (SELECT COUNT(*) FROM utenti), COUNT(*) FROM schede"), u"0|1"_s);
    }

    void addingACard() {
        sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi')");
        utente athlete;
        QVERIFY(athlete.carica(1));
        const auto card = std::make_shared<scheda>();
        QVERIFY(!athlete.Add(card));
        QCOMPARE(athlete.raccoglitore.schede->Item(1), card);
        QCOMPARE(rows(u"SELECT id_scheda, id_utente FROM schede"), u"1|1"_s);
    }
};

QUIVERDECK_TEST(TestUtente)
#include "test_utente.moc"
