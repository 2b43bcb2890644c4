#include "cards/salvaComeModello.h"

#include "cards/scheda.h"
#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

namespace {

/// What a later save needs of each line.
QStringList keys(const SchedaApribile& open) {
    QStringList result;
    for (const auto& e : *open.esercizi)
        result += u"%1 %2 %3 %4"_s.arg(e->ct).arg(e->nprog).arg(e->id_scheda).arg(e->isModello);
    return result;
}

} // namespace

class TestSalvaComeModello : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    // The card's lines and the supplied template's have the same keys, each in its table.
    void cardStaysAsItWas() {
        ::scheda card;
        fill(card);
        const QStringList before = keys(card);
        const QString others = rows(u"SELECT * FROM EserciziModello");
        SchedaModello model;
        model.categoria = u"Recupero"_s;
        model.descrizione = u"Nuovo"_s;
        salvaComeModello(card, model);
        QCOMPARE(keys(card), before);
        QCOMPARE(rows(u"SELECT * FROM EserciziModello WHERE ID_Scheda=1"), others);
        QCOMPARE(model.id_scheda, 2);
        QCOMPARE(rows(u"SELECT id_cat, descrizione, note FROM schedeModello WHERE id_Scheda=2"),
                 u"3|Nuovo|fine"_s);
        QCOMPARE(rows(u"SELECT NProg, ID_Fig, Note FROM EserciziModello WHERE ID_Scheda=2 ORDER BY NProg"),
                 u"1|1|1, 2|0|2, 3|3|3"_s);
        card.esercizi->Item(1)->note = u"cambiata"_s;
        card.save();
        QCOMPARE(rows(u"SELECT ct, ID_Scheda, Note FROM Esercizi ORDER BY ct"),
                 u"1|1|cambiata, 2|1|2, 3|1|3"_s);
    }

    void templateGivesFreshLines() {
        SchedaModello open;
        QVERIFY(open.carica(1));
        open.caricaEsercizi();
        const QStringList before = keys(open);
        SchedaModello model;
        model.categoria = u"Forza"_s;
        salvaComeModello(open, model);
        QCOMPARE(keys(open), before);
        QCOMPARE(rows(u"SELECT ID_Scheda, count(*) FROM EserciziModello GROUP BY ID_Scheda"), u"1|2, 2|2"_s);
    }

    void failureGivesTheLinesBackToo() {
        ::scheda card;
        fill(card);
        const QStringList before = keys(card);
        SchedaModello model;
        model.categoria = u"Ignota"_s;
        QCOMPARE(errorOf([&] { salvaComeModello(card, model); }), 513);
        QCOMPARE(keys(card), before);
    }

private:
    /// Three stored lines, the middle one free, and a blank one.
    static void fill(::scheda& card) {
        card.id_utente = 1;
        card.categoria = u"Forza"_s;
        card.note = u"fine"_s;
        addLines(card, {1, 0, 3, 0});
        card.esercizi->Item(2)->isLibero = true;
        card.save();
    }
};

QUIVERDECK_TEST(TestSalvaComeModello)
#include "test_salvaComeModello.moc"
