// The small files beside the program that are no figures: the click of the map and the folder of the trees.
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QTest>

class TestImages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theClickIsShortAndSoft() {
        QFile file(QStringLiteral(QUIVERDECK_IMAGES "/BodyMap/suono.wav"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDataStream in(&file);
        in.setByteOrder(QDataStream::LittleEndian);
        char riff[4], wave[8], data[4];
        quint32 rest = 0, formatBytes = 0, rate = 0, bytesASecond = 0, dataBytes = 0;
        quint16 format = 0, channels = 0, block = 0, bits = 0;
        in.readRawData(riff, 4);
        in >> rest;
        in.readRawData(wave, 8);
        in >> formatBytes >> format >> channels >> rate >> bytesASecond >> block >> bits;
        in.readRawData(data, 4);
        in >> dataBytes;
        QCOMPARE(QByteArray(riff, 4) + QByteArray(wave, 8) + QByteArray(data, 4),
                 QByteArray("RIFFWAVEfmt data"));
        QCOMPARE(qint64(rest) + 8, file.size());
        QCOMPARE(qint64(dataBytes), file.bytesAvailable());
        QCOMPARE(format, quint16(1)); // plain samples
        QCOMPARE(channels, quint16(1));
        QCOMPARE(bits, quint16(16));
        QCOMPARE(bytesASecond, rate * 2);
        QVERIFY(dataBytes > 0 && dataBytes * 1000.0 / bytesASecond <= 100);
        int loudest = 0;
        qint16 last = 0;
        while (!in.atEnd()) {
            in >> last;
            loudest = std::max(loudest, std::abs(int(last)));
        }
        QVERIFY2(loudest > 1000 && loudest < 16384, qPrintable(QString::number(loudest)));
        QVERIFY2(std::abs(int(last)) < 50, "the end would crack");
    }

    void theFolderStandsOnWhite() {
        const QImage folder(QStringLiteral(QUIVERDECK_IMAGES "/FolderXP.JPG"));
        QCOMPARE(folder.size(), QSize(25, 25));
        QVERIFY(qGray(folder.pixel(0, 0)) > 245);
        const QColor middle = folder.pixelColor(12, 15);
        QVERIFY2(middle.red() - middle.blue() > 40, "a folder is yellow");
    }
};

QTEST_GUILESS_MAIN(TestImages)
#include "test_images.moc"
