#include "cards/salvaComeModello.h"

#include "cards/scheda.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"
#include "templates/SchedaModello.h"

#include <QTest>

namespace {

/// What a later save needs of each line.
QStringList chiavi(const SchedaApribile& aperta) {
    QStringList righe;
    for (const auto& e : *aperta.esercizi) {
        righe += QStringLiteral("%1 %2 %3 %4").arg(e->ct).arg(e->nprog).arg(e->id_scheda).arg(e->isModello);
    }
    return righe;
}

/// Three stored lines, the middle one free, and a blank one.
void riempi(::scheda& s) {
    s.id_utente = 1;
    s.categoria = QStringLiteral("Forza");
    s.note = QStringLiteral("fine");
    for (const int figura : {1, 0, 3, 0}) {
        auto e = std::make_shared<Esercizio>();
        e->id_fig = figura;
        e->isLibero = s.esercizi->Count() == 1;
        e->note = QString::number(s.esercizi->Count() + 1);
        s.esercizi->Add(e);
    }
    s.save();
}

} // namespace

class TestSalvaComeModello : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The card's lines and the supplied template's have the same keys, each in its table.
    void cardStaysAsItWas() {
        const ScratchProgram programma;
        ScriptedBoxes riquadri;
        ::scheda card;
        riempi(card);
        const QStringList prima = chiavi(card);
        const QStringList altri =
            programma.rows(QStringLiteral("SELECT * FROM EserciziModello WHERE ID_Scheda=1"));

        SchedaModello modello;
        modello.categoria = QStringLiteral("Recupero");
        modello.descrizione = QStringLiteral("Nuovo");
        salvaComeModello(card, modello);

        QCOMPARE(chiavi(card), prima);
        QCOMPARE(programma.rows(QStringLiteral("SELECT * FROM EserciziModello WHERE ID_Scheda=1")), altri);
        QCOMPARE(programma.rows(
                     QStringLiteral("SELECT id_cat, descrizione, note FROM schedeModello WHERE id_Scheda=%1")
                         .arg(modello.id_scheda)),
                 QStringList(QStringLiteral("3|Nuovo|fine")));
        QCOMPARE(programma.rows(
                     QStringLiteral("SELECT NProg, ID_Fig, Note FROM EserciziModello WHERE ID_Scheda=%1 "
                                    "ORDER BY NProg")
                         .arg(modello.id_scheda)),
                 QStringList({QStringLiteral("1|1|1"), QStringLiteral("2|0|2"), QStringLiteral("3|3|3")}));

        card.esercizi->Item(1)->note = QStringLiteral("cambiata");
        card.save();
        QCOMPARE(
            programma.rows(QStringLiteral("SELECT ct, ID_Scheda, Note FROM Esercizi ORDER BY ct")),
            QStringList({QStringLiteral("1|1|cambiata"), QStringLiteral("2|1|2"), QStringLiteral("3|1|3")}));
        QVERIFY(riquadri.satisfied());
    }

    void templateGivesFreshLines() {
        const ScratchProgram programma;
        SchedaModello aperto;
        QVERIFY(aperto.carica(1));
        aperto.caricaEsercizi();
        const QStringList prima = chiavi(aperto);
        SchedaModello modello;
        modello.categoria = QStringLiteral("Forza");
        salvaComeModello(aperto, modello);
        QCOMPARE(chiavi(aperto), prima);
        QCOMPARE(programma.rows(
                     QStringLiteral("SELECT ID_Scheda, count(*) FROM EserciziModello GROUP BY ID_Scheda")),
                 QStringList({QStringLiteral("1|2"), QStringLiteral("%1|2").arg(modello.id_scheda)}));
    }

    void failureGivesTheLinesBackToo() {
        const ScratchProgram programma;
        ::scheda card;
        riempi(card);
        const QStringList prima = chiavi(card);
        SchedaModello modello;
        modello.categoria = QStringLiteral("Ignota");
        QVERIFY_THROWS_EXCEPTION(runtime::Error, salvaComeModello(card, modello));
        QCOMPARE(chiavi(card), prima);
    }
};

QTEST_GUILESS_MAIN(TestSalvaComeModello)
#include "test_salvaComeModello.moc"
