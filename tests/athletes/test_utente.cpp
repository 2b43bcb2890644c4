#include "athletes/utente.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

class TestUtente : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void roundTrip() {
        for (const QString& text :
             {u"'); DROP TABLE utenti; --"_s, u"DELETE * FROM x #1/1/2005# [è] \"x\" 🏋"_s, QString(),
              QString(32767, u'è')}) {
            utente athlete;
            athlete.nome = u"Ada"_s;
            athlete.cognome = u"D'Amico"_s;
            athlete.dataNascita = QDate(1970, 2, 1);
            athlete.sesso = u"F"_s;
            athlete.note = text;
            const qint32 key = athlete.save();
            QCOMPARE(athlete.id_utente, 0);
            QVERIFY(athlete.carica(key));
            QCOMPARE(athlete.save(), 0); // what was read is written back
            QCOMPARE(rows(u"SELECT nome,cognome,dataNascita,sesso,Note FROM utenti").section(u", "_s, -1),
                     u"Ada|D`Amico|1970-02-01|F|"_s + QString(text).replace(u'\'', u'`'));
        }
    }

    void statements() {
        utente athlete;
        athlete.nome = u"Ada"_s;
        athlete.cognome = u"D'Amico"_s;
        athlete.sesso = u"F"_s;
        QCOMPARE(athlete.save(), 1);
        QCOMPARE(athlete.save(), 2); // a new one is inserted anew
        QVERIFY(athlete.carica(2));
        QCOMPARE(athlete.dataNascita, QDate(1980, 1, 1)); // stands in for Null
        athlete.dataNascita = QDate(1970, 2, 1);
        athlete.save();
        const QString insert = u"Execute - INSERT INTO utenti (nome,cognome,dataNascita,sesso,[Note]) "
                               "VALUES ('Ada','D`Amico',null,'F','')"_s;
        QCOMPARE(log(), QStringList({insert, insert,
                                     u"Execute - UPDATE utenti SET nome= 'Ada',cognome = 'D`Amico',sesso= "
                                     "'F',dataNascita = #02/01/1970#,[Note]='' WHERE id_utente=2"_s}));
    }

    void failures() {
        sql(u"INSERT INTO utenti (id_utente,nome,cognome) VALUES (30,'a','b'),(9,'Ada',NULL)");
        utente athlete;
        athlete.nome = u"Eva"_s;
        athlete.sesso = u"'"_s;
        boxes().expectBeginning(Icon::None, u"1-"_s);
        QCOMPARE(athlete.save(), 30); // somebody else's: the highest key
        boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!athlete.carica(99));
        QCOMPARE(errorOf([&] { return athlete.carica(9); }), 94); // no surname
        QCOMPARE(athlete.nome + QString::number(athlete.id_utente), u"Eva0"_s);
    }

    void deletionTakesTheCardsAlong() {
        sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi'),('Eva','Bianchi');"
            "INSERT INTO schede (id_utente,id_cat,FreqAllen) VALUES (1,1,3),(2,1,3),(1,0,3);"
            "INSERT INTO Esercizi (ID_Scheda) VALUES (1),(2),(3)");
        QVERIFY(utente().Elimina(1)); // and no box: the view knows these cards no more
        QCOMPARE(rows(u"SELECT id_scheda, id_utente FROM schede"), u"2|2"_s);
        QCOMPARE(rows(u"SELECT ID_Scheda FROM Esercizi"), u"2"_s);
        QCOMPARE(rows(u"SELECT id_utente FROM utenti"), u"2"_s);
    }

    void rowGoesEvenIfTheCardsCannot() {
        sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi');"
            "INSERT INTO schede (id_utente,id_cat) VALUES (1,1);"
            "CREATE TRIGGER t BEFORE DELETE ON schede BEGIN SELECT RAISE(ABORT,'no'); END");
        boxes().expectBeginning(Icon::None, u"1811-"_s); // SQLITE_CONSTRAINT_TRIGGER
        QVERIFY(utente().Elimina(1));
        QCOMPARE(rows(u"SELECT (SELECT COUNT(*) FROM utenti), COUNT(*) FROM schede"), u"0|1"_s);
    }
};

QUIVERDECK_TEST(TestUtente)
#include "test_utente.moc"
