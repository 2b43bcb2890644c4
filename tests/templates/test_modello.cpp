#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

class TestModello : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void savingEscapesTheTexts() {
        SchedaModello model;
        model.categoria = u"Generale"_s;
        model.descrizione = u"l'anca DELETE * FROM x #1/1/2005# è 🏋"_s;
        model.note = u"d'urto"_s;
        QCOMPARE(model.save(), 2);
        QCOMPARE(model.save(), 0);
        QCOMPARE(rows(u"SELECT * FROM schedeModello WHERE id_Scheda=2"),
                 u"2|2|l`anca DELETE * FROM x #1/1/2005# è 🏋|0|d`urto"_s);
    }

    void linesGoToTheTemplatesTable() {
        SchedaModello model;
        QVERIFY(model.carica(1));
        for (int i = 0; i < 2; ++i)
            model.caricaEsercizi();
        QCOMPARE(lines(model), u"1:2:1 2:3:1 1:2:1 2:3:1"_s); // doubles, unlike a card
        for (int i = 0; i < 2; ++i)
            model.esercizi->Remove(3);
        model.esercizi->Add(std::make_shared<Esercizio>(), 1); // its flag says card
        model.esercizi->Item(1)->id_fig = 1;
        model.save();
        QCOMPARE(rows(u"SELECT ct, NProg, ID_Fig, ID_Scheda FROM EserciziModello ORDER BY NProg"),
                 u"3|1|1|1, 1|2|2|1, 2|3|3|1"_s);
        QCOMPARE(rows(u"SELECT * FROM Esercizi"), QString());
        model.EliminaEsercizio(2);
        QCOMPARE(rows(u"SELECT ct FROM EserciziModello ORDER BY ct"), u"2, 3"_s);
        QVERIFY(model.Elimina(0)); // supplied or not
        QCOMPARE(rows(u"SELECT * FROM EserciziModello"), QString());
    }
};

QUIVERDECK_TEST(TestModello)
#include "test_modello.moc"
