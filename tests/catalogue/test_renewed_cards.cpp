// After the catalogue of a store in use was renewed, the program opens and prints every card as before.
#include "StoreRenewal.h"

#include "printing/finestraFinta.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"

#include "cards/scheda.h"
#include "printing/Painting.h"
#include "printing/pages.h"
#include "templates/SchedaModello.h"

#include <QDir>
#include <QImage>
#include <QTest>

class TestRenewedCards : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCardOpensAndPrints() {
        const ScratchProgram program;
        ScriptedBoxes boxes;
        program.sql(QStringLiteral(
            "INSERT INTO utenti (nome, cognome) VALUES ('Ada', 'Rossi'), ('Bruno', 'Neri');"
            "INSERT INTO schede (id_utente, Istruttore, PeriodoDal, id_cat, FreqAllen, GGAllen) VALUES "
            "(1, 'Mara', '2005-01-02', 1, 3, '001010100'), (2, '', NULL, 3, 1, '');"
            "INSERT INTO Esercizi (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, Ampiezza, RecuperoMin, "
            "RecuperoSec, "
            "Serie, isLibero, Note) VALUES (1, 1, 1, '30s', '30Hz', 'L', 0, 30, 2, 0, 'prima'),"
            "(2, 1, 2, '45s', '35Hz', 'H', 1, 0, 3, 0, ''), (3, 1, 0, '30s', '30Hz', 'L', 0, 0, 0, 1, "
            "'libero'),"
            "(1, 2, 3, '60s', '40Hz', 'L', 0, 0, 1, 0, '');"));
        QVERIFY(catalogue::renewStore(QStringLiteral(QUIVERDECK_STORE), program.store()));
        // The figures of the cards have new pictures, which came with the catalogue.
        QDir(program.folder()).mkpath(QStringLiteral("images/figure"));
        QImage drawing(96, 90, QImage::Format_RGB32);
        drawing.fill(Qt::red);
        for (const char* code : {"Q001", "Q002", "Q003"})
            QVERIFY(drawing.save(program.folder() +
                                 QStringLiteral("/images/figure/%1.JPG").arg(QLatin1String(code))));

        for (const auto& [key, exercises] : {std::pair{1, 3}, std::pair{2, 1}}) {
            scheda card;
            QVERIFY(card.carica(key));
            card.caricaEsercizi();
            QCOMPARE(card.esercizi->Count(), exercises);

            FinestraFinta window;
            pages job(window);
            job.createPages(key);
            job.OpenCanvas();
            QCOMPARE(job.pages_.Count(), 1);
            job.PreviewPage(1);
            const QImage sheet = sheet::raster(window.surface, 1);
            const sheet::Element& figure = window.el("figura", 0);
            QVERIFY(figure.visible);
            const QPoint middle(qRound((figure.left + figure.width / 2) / sheet::twipsPerPixel),
                                qRound((figure.top + figure.height / 2) / sheet::twipsPerPixel));
            QCOMPARE(sheet.pixelColor(middle).green() < 60, true);
        }
        QVERIFY(boxes.satisfied());
    }

    void aNewTemplateOpens() {
        const ScratchProgram program;
        ScriptedBoxes boxes;
        QVERIFY(catalogue::renewStore(QStringLiteral(QUIVERDECK_STORE), program.store()));
        const QStringList keys =
            program.rows(QStringLiteral("SELECT id_Scheda FROM schedeModello WHERE id_Scheda > 1"));
        QVERIFY(keys.size() >= 16);
        for (const QString& key : keys) {
            SchedaModello model;
            QVERIFY(model.carica(key.toInt()));
            QVERIFY(model.preimpostata);
            model.caricaEsercizi();
            QVERIFY(model.esercizi->Count() >= 6);
        }
        QVERIFY(boxes.satisfied());
    }
};

QTEST_MAIN(TestRenewedCards)
#include "test_renewed_cards.moc"
