#include "cards/scheda.h"
#include "support/FakeControls.h"
#include "support/RecordsTest.h"
#include "templates/Categorie.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

class TestModello : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void roundTrip() {
        const auto text = u"l'anca DELETE * FROM x #1/1/2005# è 🏋"_s;
        const QString whole = u"2|2|%1|1|%1 2"_s.arg(QString(text).replace(u'\'', u'`'));
        SchedaModello model;
        model.categoria = u"Generale"_s;
        model.descrizione = text;
        model.note = text + u" 2"_s;
        model.preimpostata = true;
        QCOMPARE(model.save(), 2);
        const auto stored = u"SELECT * FROM schedeModello WHERE id_Scheda=2";
        QCOMPARE(rows(stored), whole);
        sql(u"UPDATE schedeModello SET id_cat=1,descrizione='',preimpostata=0,note=''");
        QCOMPARE(model.save(), 0); // the update writes every field too
        QCOMPARE(rows(stored), whole);
        SchedaModello read;
        QVERIFY(read.carica(2));
        QCOMPARE(read.save(), 0);
        QCOMPARE(rows(stored), whole);
        QVERIFY(read.categoria == u"Generale" && read.preimpostata);
    }

    void linesGoToTheTemplatesTable() {
        SchedaModello model;
        QVERIFY(model.carica(1));
        for (int i = 0; i < 2; ++i)
            model.caricaEsercizi();
        QCOMPARE(lines(model), u"1:2:1 2:3:1 1:2:1 2:3:1"_s); // doubles, unlike a card
        for (int i = 0; i < 2; ++i)
            model.esercizi->Remove(3);
        auto line = std::make_shared<Esercizio>();
        line->id_fig = 1; // its flag still says card
        model.esercizi->Add(line, 1);
        model.save();
        QCOMPARE(rows(u"SELECT ct, NProg, ID_Fig, ID_Scheda FROM EserciziModello ORDER BY NProg"),
                 u"3|1|1|1, 1|2|2|1, 2|3|3|1"_s);
        QCOMPARE(rows(u"SELECT * FROM Esercizi"), QString());
        model.EliminaEsercizio(2);
        QCOMPARE(rows(u"SELECT ct FROM EserciziModello ORDER BY ct"), u"2, 3"_s);
        QVERIFY(model.Elimina(0)); // supplied or not
        QCOMPARE(rows(u"SELECT * FROM EserciziModello"), QString());
    }

    void pouringIntoACard() {
        SchedaModello model;
        model.carica(1);
        model.caricaEsercizi();
        scheda card;
        QVERIFY(model.travasaTo(card, false));
        QVERIFY(card.categoria == u"Forza" && card.id_cat == 1 && card.note == u"Note del modello");
        QCOMPARE(lines(card), u"0:2:0 0:3:0"_s);
        QCOMPARE(lines(model), u"1:2:1 2:3:1"_s);
    }

    void categories() {
        sql(u"INSERT INTO categorie VALUES (9,'Forza')");
        FakeItemList list;
        list.items = {u"già qui"_s};
        Categorie().fillcategorie(list);
        QCOMPARE(list.items.join(u' '), u"già qui Forza Forza Generale Recupero"_s);
    }
};

QUIVERDECK_TEST(TestModello)
#include "test_modello.moc"
