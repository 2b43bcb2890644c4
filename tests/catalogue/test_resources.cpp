// Icons and logos that are compiled in: each is there, in each size and look, and logos have no empty side.
#include "artwork/icons/Icone.h"
#include "artwork/logos/Loghi.h"

#include <QFile>
#include <QTest>

namespace {
/// The smallest rectangle that holds every pixel that is not clear.
QRect inked(const QImage& image) {
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 16)
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}
} // namespace

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyButtonHasItsIcon_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QStringList>("keys");
        const auto row = [](const char* form, const char* keys) {
            QTest::newRow(form) << QString::fromLatin1(form)
                                << QString::fromLatin1(keys).split(QLatin1Char(' '));
        };
        row("Principale", "nuova nuovaDaModello apri esci");
        row("UtentiSelezione", "seleziona annulla nuovo modifica elimina");
        row("mdiScheda", "salva SalvaSuModello stampa fine");
        row("SchedeSelezione", "seleziona annulla elimina stampa");
        row("SchedeMODELLOSelezione", "seleziona annulla nuova modifica elimina");
        row("PrinterCanvas", "Stampa PagPrec PagSucc esci");
        row("PrinterDaNonFare", "Stampa PagPrec PagSucc esci");
        row("menu", "lista esci utenti nuova apri damodello hint info");
        row("SchedaIntestazione", "apriGGAllen");
        row("SchedaCorpo", "InserisciEsecizio EliminaEsercizio");
        row("SchedaSelezioneFIGURE", "cmdZoom");
        row("SchedaPreviewFigura", "cmdClose");
    }
    void everyButtonHasItsIcon() {
        QFETCH(QString, form);
        QFETCH(QStringList, keys);
        for (const QString& key : keys) {
            const QIcon icon = artwork::icona(form, key);
            QVERIFY2(!icon.isNull(), qPrintable(key));
            for (const int size : {16, 24, 32}) {
                for (const qreal ratio : {1.0, 2.0}) {
                    const QPixmap normal = icon.pixmap(QSize(size, size), ratio, QIcon::Normal);
                    const QPixmap hot = icon.pixmap(QSize(size, size), ratio, QIcon::Active);
                    QCOMPARE(normal.size(), QSize(size, size) * ratio);
                    QVERIFY2(!inked(normal.toImage()).isEmpty(), qPrintable(key));
                    QVERIFY2(normal.toImage() != hot.toImage(), qPrintable(key));
                }
            }
        }
    }

    void anUnknownIconIsNull() {
        QVERIFY(artwork::icona(QStringLiteral("menu"), QStringLiteral("?")).isNull());
    }

    void logosFillTheirBox_data() {
        QTest::addColumn<int>("which");
        QTest::addColumn<QSize>("pixels");
        // The sheet's footers at one and at four pixels a screen pixel, and a main window's size.
        QTest::newRow("product, footer") << int(artwork::Logo::QuiverDeck) << QSize(90, 27);
        QTest::newRow("product, printed") << int(artwork::Logo::QuiverDeck) << QSize(360, 108);
        QTest::newRow("product, large") << int(artwork::Logo::QuiverDeck) << QSize(800, 240);
        QTest::newRow("maker, footer") << int(artwork::Logo::Zentara) << QSize(117, 36);
        QTest::newRow("maker, printed") << int(artwork::Logo::Zentara) << QSize(468, 144);
        QTest::newRow("side bar") << int(artwork::Logo::BarraMenu) << QSize(20, 96);
        QTest::newRow("program") << int(artwork::Logo::Programma) << QSize(48, 48);
    }
    void logosFillTheirBox() {
        QFETCH(int, which);
        QFETCH(QSize, pixels);
        const QImage image = artwork::logo(static_cast<artwork::Logo>(which), pixels);
        QCOMPARE(image.size(), pixels);
        const QRect ink = inked(image);
        QVERIFY(ink.width() > pixels.width() * 0.6);
        QVERIFY(ink.height() > pixels.height() * 0.5);
        QVERIFY2(ink.left() > 0 || ink.right() < pixels.width() - 1, "cut at a side");
    }
};

QTEST_MAIN(TestResources)
#include "test_resources.moc"
