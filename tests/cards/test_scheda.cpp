#include "cards/salvaComeModello.h"
#include "cards/scheda.h"
#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

/// What cards and their lines store beside the plain values of their columns, which `sospesa` compares.
class TestScheda : public RecordsTest {
    Q_OBJECT

private Q_SLOTS:
    void goalWithApostropheFailsOnlyOnTheFirstSave() {
        sql(u"INSERT INTO schede (id_scheda) VALUES (40)");
        scheda card;
        card.categoria = u"Recupero"_s;
        card.Obiettivo = u"l'anca #1/1/2005#"_s;
        card.note = u"dell'anca 🏋 DELETE * FROM x"_s;
        boxes().expectBeginning(Icon::None, u"1-"_s);
        QCOMPARE(card.save(), 40); // the highest key there is
        QCOMPARE(card.save(), 0);
        const auto stored = u"SELECT id_cat, obiettivo, note FROM schede";
        const QString whole = u"3|l`anca #1/1/2005#|dell`anca 🏋 DELETE * FROM x"_s;
        QCOMPARE(rows(stored), whole);
        card.note.clear();
        card.categoria = u"forza"_s; // compared exactly
        QCOMPARE(errorOf([&] { return card.save(); }), int(runtime::OwnErrors));
        QCOMPARE(rows(stored), whole);
    }

    void linesKeepTheirPlaces() {
        scheda card;
        card.categoria = u"Recupero"_s;
        addLines(card, {3, 0, 2, 0});
        card.esercizi->Item(1)->note = u"l'anca"_s;
        card.esercizi->Item(4)->isLibero = true;
        card.save();
        const auto stored = u"SELECT ct, NProg, ID_Fig, isLibero, ID_Scheda, Note FROM Esercizi ORDER BY ct";
        QCOMPARE(rows(stored), u"1|1|3|0|1|l`anca, 2|3|2|0|1|3, 3|4|0|1|1|4"_s);
        card.caricaEsercizi();
        card.caricaEsercizi();
        QCOMPARE(lines(card), u"1:3:0 2:2:0 3:0:0"_s);
        // At once from the store; the numbers behind it only with the next save.
        card.EliminaEsercizio(1);
        QCOMPARE(card.esercizi->Item(1)->nprog, 1);
        QCOMPARE(rows(stored), u"2|3|2|0|1|3, 3|4|0|1|1|4"_s);
        // A blanked line keeps its row and comes back.
        card.esercizi->Item(1)->svuotaDati();
        card.save();
        QCOMPARE(rows(stored), u"2|3|2|0|1|3, 3|2|0|1|1|4"_s);
        QVERIFY(card.Elimina(0));
        QCOMPARE(rows(stored), QString());
    }

    void badLines() {
        for (const QString& row :
             {u"Durata=NULL 94"_s, u"Frequenza=NULL 94"_s, u"Ampiezza=NULL 94"_s, u"isLibero=NULL 94"_s,
              u"RecuperoMin=256 6"_s, u"RecuperoSec=256 6"_s, u"Serie=256 6"_s,
              u"RecuperoMin=NULL,RecuperoSec=NULL,Serie=NULL,Modalita=NULL,Peso=NULL,Note=NULL 0"_s}) {
            Esercizio line;
            line.save();
            sql(u"UPDATE Esercizi SET "_s + row.section(u' ', 0, 0));
            QCOMPARE(errorOf([&] { return line.carica(line.ct); }), row.section(u' ', 1).toInt());
        }
    }

    // The editor goes on with the card, whatever became of the template.
    void savingAsATemplateGivesTheLinesBack() {
        scheda card;
        card.categoria = u"Recupero"_s;
        addLines(card, {1, 3});
        card.save();
        SchedaModello model;
        model.categoria = u"Ignota"_s;
        QCOMPARE(errorOf([&] { salvaComeModello(card, model); }), int(runtime::OwnErrors));
        QCOMPARE(lines(card), u"1:1:0 2:3:0"_s);
        // The bare pouring shares the collection and doubles its lines.
        QVERIFY(card.travasaTo(model, true));
        QCOMPARE(model.categoria, u"Ignota"_s);
        QCOMPARE(model.esercizi, card.esercizi);
        QCOMPARE(lines(card), u"0:1:1 0:3:1 1:1:0 2:3:0"_s);
    }
};

QUIVERDECK_TEST(TestScheda)
#include "test_scheda.moc"
