#include "athletes/utente.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

class TestUtente : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void saving() {
        const auto stored = u"SELECT nome,cognome,dataNascita,sesso,Note FROM utenti WHERE id_utente=2";
        utente athlete;
        athlete.nome = u"D'Ada"_s;
        athlete.cognome = u"D'Amico"_s;
        athlete.sesso = u"F"_s;
        athlete.note = u"l'anca"_s;
        QCOMPARE(athlete.save(), 1);
        QCOMPARE(athlete.save(), 2); // a new one is inserted anew
        QCOMPARE(rows(stored), u"D`Ada|D`Amico|NULL|F|l`anca"_s);
        QVERIFY(athlete.carica(2));
        QCOMPARE(athlete.dataNascita, QDate(1980, 1, 1)); // stands in for Null
        athlete.dataNascita = QDate(1970, 2, 1);
        for (const QString& text :
             {u"'); DROP TABLE utenti; --"_s, u"DELETE * FROM x #1/1/2005# [è] \"x\" 🏋"_s, QString(),
              QString(32767, u'è')}) {
            athlete.note = text;
            QCOMPARE(athlete.save(), 0);
            QVERIFY(athlete.carica(2) && athlete.save() == 0); // what was read is written back
            QCOMPARE(rows(stored), u"D`Ada|D`Amico|1970-02-01|F|"_s + QString(text).replace(u'\'', u'`'));
        }
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
        const auto left = u"SELECT (SELECT group_concat(nome) FROM utenti), id_scheda, "
                          "(SELECT group_concat(ID_Scheda) FROM Esercizi) FROM schede";
        QVERIFY(utente().Elimina(1)); // and no box: the view knows these cards no more
        QCOMPARE(rows(left), u"Eva|2|2"_s);
        // The row goes even if the cards cannot.
        sql(u"CREATE TRIGGER t BEFORE DELETE ON schede BEGIN SELECT RAISE(ABORT,'no'); END");
        boxes().expectBeginning(Icon::None, u"1811-"_s); // SQLITE_CONSTRAINT_TRIGGER
        QVERIFY(utente().Elimina(2));
        QCOMPARE(rows(left), u"NULL|2|2"_s);
    }
};

QUIVERDECK_TEST(TestUtente)
#include "test_utente.moc"
