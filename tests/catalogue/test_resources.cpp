// Icons, logos, the map's click and the trees' folder: each is there, in each size and look.
#include "artwork/icons/Icone.h"
#include "artwork/logos/Loghi.h"
#include "platform/host/Sound.h"
#include "support/Suite.h"

#include <QFile>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {
/// The smallest rectangle that holds every pixel that is not clear.
QRect inked(const QImage& image) {
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 16)
                result |= QRect(x, y, 1, 1);
    }
    return result;
}
} // namespace

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyButtonHasItsIcon_data() {
        QTest::addColumn<QString>("keys");
        QTest::newRow("Principale") << "nuova nuovaDaModello apri esci";
        QTest::newRow("UtentiSelezione") << "seleziona annulla nuovo modifica elimina";
        QTest::newRow("mdiScheda") << "salva SalvaSuModello stampa fine";
        QTest::newRow("SchedeSelezione") << "seleziona annulla elimina stampa";
        QTest::newRow("SchedeMODELLOSelezione") << "seleziona annulla nuova modifica elimina";
        QTest::newRow("PrinterCanvas") << "Stampa PagPrec PagSucc esci";
        QTest::newRow("PrinterDaNonFare") << "Stampa PagPrec PagSucc esci";
        QTest::newRow("menu") << "lista esci utenti nuova apri damodello hint info";
        QTest::newRow("SchedaIntestazione") << "apriGGAllen";
        QTest::newRow("SchedaCorpo") << "InserisciEsecizio EliminaEsercizio";
        QTest::newRow("SchedaSelezioneFIGURE") << "cmdZoom";
        QTest::newRow("SchedaPreviewFigura") << "cmdClose";
    }
    void everyButtonHasItsIcon() {
        QFETCH(QString, keys);
        for (const QString& key : keys.split(u' ')) {
            const QIcon icon = artwork::icona(QString::fromLatin1(QTest::currentDataTag()), key);
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
        QVERIFY(artwork::icona(u"menu"_s, u"?"_s).isNull());
    }

    void logosFillTheirBox_data() {
        QTest::addColumn<artwork::Logo>("which");
        QTest::addColumn<QSize>("pixels");
        // The sheet's footers at one and at four pixels a screen pixel.
        QTest::newRow("product, footer") << artwork::Logo::QuiverDeck << QSize(90, 27);
        QTest::newRow("product, printed") << artwork::Logo::QuiverDeck << QSize(360, 108);
        QTest::newRow("maker, footer") << artwork::Logo::Zentara << QSize(117, 36);
        QTest::newRow("side bar") << artwork::Logo::BarraMenu << QSize(20, 96);
        QTest::newRow("program") << artwork::Logo::Programma << QSize(48, 48);
    }
    void logosFillTheirBox() {
        QFETCH(artwork::Logo, which);
        QFETCH(QSize, pixels);
        const QImage image = artwork::logo(which, pixels);
        QCOMPARE(image.size(), pixels);
        const QRect ink = inked(image);
        QVERIFY(ink.width() > pixels.width() * 0.6);
        QVERIFY(ink.height() > pixels.height() * 0.5);
        QVERIFY2(ink.left() > 0 || ink.right() < pixels.width() - 1, "cut at a side");
    }

    void theClickIsShortAndSoft() {
        QFile file(QStringLiteral(QUIVERDECK_IMAGES "/BodyMap/suono.wav"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto wave = host::readWave(file.readAll());
        QVERIFY(wave && wave->channels == 1 && wave->bitsPerSample == 16 && !wave->samples.isEmpty());
        QVERIFY(wave->samples.size() / 2 * 1000.0 / wave->rate <= 100); // milliseconds
        int loudest = 0;
        int last = 0;
        for (qsizetype at = 0; at < wave->samples.size(); at += 2) {
            last = qFromLittleEndian<qint16>(wave->samples.constData() + at);
            loudest = std::max(loudest, std::abs(last));
        }
        QVERIFY2(loudest > 1000 && loudest < 16384, qPrintable(QString::number(loudest)));
        QVERIFY2(std::abs(last) < 50, "the end would crack");
    }

    void theFolderStandsOnWhite() {
        const QImage folder(QStringLiteral(QUIVERDECK_IMAGES "/FolderXP.JPG"));
        QCOMPARE(folder.size(), QSize(25, 25));
        QVERIFY(qGray(folder.pixel(0, 0)) > 245);
        const QColor middle = folder.pixelColor(12, 15);
        QVERIFY2(middle.red() - middle.blue() > 40, "a folder is yellow");
    }
};

QUIVERDECK_TEST(TestResources)
#include "test_resources.moc"
