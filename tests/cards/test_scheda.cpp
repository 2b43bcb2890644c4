#include "cards/raccoglitore.h"
#include "cards/salvaComeModello.h"
#include "cards/scheda.h"
#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

class TestScheda : public RecordsTest {
    Q_OBJECT

    static void fill(scheda& card, std::initializer_list<qint32> figures = {}) {
        card.id_utente = 1;
        card.Istruttore = u"Màrio"_s;
        card.PeriodoDal = u"01/02/2005"_s;
        card.PeriodoAl = u"22/02/2005"_s;
        card.categoria = u"Recupero"_s;
        card.Obiettivo = u"Forza e #1/1/2005#"_s;
        card.note = u"dell'anca 🏋 DELETE * FROM x"_s;
        card.FreqAllen = 255;
        card.GGAllen = u"001010100"_s;
        addLines(card, figures);
    }
private Q_SLOTS:
    void init() {
        RecordsTest::init();
        sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi')");
    }

    void roundTrip() {
        const auto stored = u"SELECT * FROM schede";
        const QString whole = u"1|1|Màrio|2005-02-01|2005-02-22|3|255|001010100|Forza e #1/1/2005#|"
                              "dell`anca 🏋 DELETE * FROM x"_s;
        scheda card;
        fill(card);
        QCOMPARE(card.save(), 1);
        QCOMPARE(rows(stored), whole);
        sql(u"UPDATE schede SET Istruttore='',PeriodoDal='1980-01-01',PeriodoAl=NULL,id_cat=1,Obiettivo='',"
            "note='',FreqAllen=0,GGAllen=''");
        scheda blank;
        QVERIFY(blank.carica(1));
        // A stored date is no Null even where it is the one that stands for Null.
        QVERIFY(!blank.periodoDalNullo() && blank.periodoAlNullo());
        QCOMPARE(card.save(), 0); // the update writes every field too
        QCOMPARE(rows(stored), whole);
        QVERIFY(blank.carica(1));
        QCOMPARE(blank.cognomeUtente + blank.nomeUtente, u"RossiAda"_s);
        QCOMPARE(blank.save(), 0);
        QCOMPARE(rows(stored), whole);
    }

    void goalWithApostropheFailsOnlyOnTheFirstSave() {
        sql(u"INSERT INTO schede (id_scheda) VALUES (40)");
        scheda card;
        fill(card);
        card.Obiettivo = u"l'anca"_s;
        boxes().expectBeginning(Icon::None, u"1-"_s);
        QCOMPARE(card.save(), 40); // the highest key there is
        QCOMPARE(card.save(), 0);
        QCOMPARE(rows(u"SELECT obiettivo FROM schede"), u"l`anca"_s);
    }

    void anUnknownCategoryStopsTheSave() {
        scheda card;
        fill(card, {1});
        card.categoria = u"forza"_s; // compared exactly
        QCOMPARE(errorOf([&] { return card.save(); }), int(runtime::OwnErrors));
        QCOMPARE(rows(u"SELECT * FROM schede"), QString());
    }

    void linesKeepTheirPlaces() {
        scheda card;
        fill(card, {3, 0, 2, 0});
        card.esercizi->Item(4)->isLibero = true;
        card.save();
        const auto stored = u"SELECT ct, NProg, ID_Fig, isLibero, ID_Scheda FROM Esercizi ORDER BY ct";
        QCOMPARE(rows(stored), u"1|1|3|0|1, 2|3|2|0|1, 3|4|0|1|1"_s);
        card.caricaEsercizi();
        card.caricaEsercizi();
        QCOMPARE(lines(card), u"1:3:0 2:2:0 3:0:0"_s);
        // At once from the store; the numbers behind it only with the next save.
        card.EliminaEsercizio(1);
        QCOMPARE(card.esercizi->Item(1)->nprog, 1);
        QCOMPARE(rows(stored), u"2|3|2|0|1, 3|4|0|1|1"_s);
        // A blanked line keeps its row and comes back.
        card.esercizi->Item(1)->svuotaDati();
        card.save();
        QCOMPARE(rows(stored), u"2|3|2|0|1, 3|2|0|1|1"_s);
        QVERIFY(card.Elimina(0));
        QCOMPARE(rows(stored), QString());
    }

    // The editor goes on with the card, whatever became of the template.
    void savingAsATemplateGivesTheLinesBack() {
        scheda card;
        fill(card, {1, 3});
        card.save();
        for (const QString& category : {u"Ignota"_s, u"Forza"_s}) {
            SchedaModello model;
            model.categoria = category;
            const int error = errorOf([&] { salvaComeModello(card, model); });
            QCOMPARE(error, category == u"Forza"_s ? 0 : int(runtime::OwnErrors));
            QCOMPARE(lines(card), u"1:1:0 2:3:0"_s);
            QCOMPARE(card.esercizi->Item(2)->id_scheda, 1);
        }
        QCOMPARE(rows(u"SELECT ct, ID_Scheda, NProg, ID_Fig FROM EserciziModello WHERE ID_Scheda>1"),
                 u"3|2|1|1, 4|2|2|3"_s);
        SchedaModello target; // the bare pouring shares the collection and doubles its lines
        QVERIFY(card.travasaTo(target, true));
        QCOMPARE(target.categoria, QString());
        QCOMPARE(target.esercizi, card.esercizi);
        QCOMPARE(lines(card), u"0:1:1 0:3:1 1:1:0 2:3:0"_s);
    }

    void allCardsOfAnAthlete() {
        sql(u"INSERT INTO schede (id_utente,id_cat) VALUES (1,1),(1,NULL),(2,1),(1,2)");
        raccoglitore cards;
        cards.id_utente = 1;
        QVERIFY(cards.EliminaTutto()); // the card that the view does not show, too
        QCOMPARE(rows(u"SELECT id_utente FROM schede"), u"2"_s);
    }
};

QUIVERDECK_TEST(TestScheda)
#include "test_scheda.moc"
