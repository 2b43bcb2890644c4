// After the catalogue of a store in use was renewed, the program opens and prints every card as before.
#include "StoreRenewal.h"

#include "printing/disegni.h"
#include "printing/finestraFinta.h"
#include "support/RecordsTest.h"

#include "cards/scheda.h"
#include "printing/pages.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

class TestRenewedCards : public RecordsTest {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        RecordsTest::init();
        sql(u"INSERT INTO utenti (nome, cognome) VALUES ('Ada', 'Rossi'), ('Bruno', 'Neri');"
            "INSERT INTO schede (id_utente, Istruttore, PeriodoDal, id_cat, FreqAllen, GGAllen) VALUES "
            "(1, 'Mara', '2005-01-02', 1, 3, '001010100'), (2, '', NULL, 3, 1, '');"
            "INSERT INTO Esercizi (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, Ampiezza, Serie, isLibero) "
            "VALUES (1, 1, 1, '30s', '30Hz', 'L', 2, 0), (2, 1, 2, '45s', '35Hz', 'H', 3, 0),"
            "(3, 1, 0, '30s', '30Hz', 'L', 0, 1), (1, 2, 3, '60s', '40Hz', 'L', 1, 0)");
        QVERIFY(catalogue::renewStore(QStringLiteral(QUIVERDECK_STORE), program().store()));
    }

    void everyCardOpensAndPrints() {
        // The figures of the cards have new pictures, which came with the catalogue.
        for (const auto& code : {u"Q001"_s, u"Q002"_s, u"Q003"_s})
            QVERIFY(disegni::writeFigure(program().folder() + u"/images/figure/%1.JPG"_s.arg(code), {96, 90},
                                         Qt::red));
        for (const auto& [key, exercises] : {std::pair{1, 3}, std::pair{2, 1}}) {
            scheda card;
            QVERIFY(card.carica(key));
            card.caricaEsercizi();
            QCOMPARE(card.esercizi->Count(), exercises);

            FinestraFinta window;
            pages job(window);
            job.createPages(key);
            QCOMPARE(job.pages_.Count(), 1);
            job.PreviewPage(1);
            const QRectF figure = window.el("figura").rect();
            const QRect pixels = QRectF(figure.topLeft() / 15, figure.size() / 15).toAlignedRect();
            const QColor corner =
                sheet::raster(window.surface, 1).pixelColor(pixels.topRight() - QPoint(6, -6));
            QVERIFY2(corner.red() > 200 && corner.green() < 90, qPrintable(corner.name()));
        }
    }

    void aNewTemplateOpens() {
        const QStringList keys = program().rows(u"SELECT id_Scheda FROM schedeModello WHERE id_Scheda > 1"_s);
        QVERIFY(keys.size() >= 16);
        for (const QString& key : keys) {
            SchedaModello model;
            QVERIFY(model.carica(key.toInt()));
            QVERIFY(model.preimpostata);
            model.caricaEsercizi();
            QVERIFY(model.esercizi->Count() >= 6);
        }
    }
};

QUIVERDECK_TEST(TestRenewedCards)
#include "test_renewed_cards.moc"
