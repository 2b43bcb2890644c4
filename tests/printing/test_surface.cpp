// The sheet as data, its text layout and its painting at several scales.

#include "disegni.h"

#include "platform/runtime/Error.h"
#include "printing/FittedText.h"
#include "printing/Painting.h"
#include "printing/Stile.h"
#include "printing/Surface.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace sheet;

namespace {

const QString longText = QStringLiteral(
    "Mantenere la schiena dritta, le ginocchia leggermente flesse e lo sguardo in avanti; respirare con "
    "regolarità e non irrigidire le spalle. Perché l'esercizio sia efficace, fermarsi al primo fastidio.");

Element wrapped(const QString& text, QSizeF size = {2535, 480}) {
    Element element = textBox(QStringLiteral("t"), 0, QRectF({300, 300}, size), verdana(8.25), text);
    element.wordWrap = true;
    return element;
}

int errorOf(const auto& act) {
    try {
        act();
    } catch (const runtime::Error& error) {
        return error.number();
    }
    return 0;
}

} // namespace

class TestSurface : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void elements();
    void fitSingle_data();
    void fitSingle();
    void fitWrapped_data();
    void fitWrapped();
    void cutKeepsWholeCharacters();
    void alignment_data();
    void alignment();
    void samePageAtEveryScale();
    void rasterKnowsItsSize_data();
    void rasterKnowsItsSize();
    void picturesKeepToTheirBox();
    void picturesAreNotReadAgain();
    void badPictures_data();
    void badPictures();
    void hugePictureIsDecodedScaled();
};

void TestSurface::elements() {
    Surface surface;
    surface.add(roundedFrame(QStringLiteral("sotto"), 0, {0, 0, 1000, 1000}));
    surface.add(textBox(QStringLiteral("sopra"), 3, {500, 500, 1000, 1000}, times(9)));
    QCOMPARE(surface.elementAt({700, 700})->name, QStringLiteral("sopra"));
    surface.element(QStringLiteral("sopra"), 3).visible = false;
    QVERIFY(!surface.elementAt({700, 700})); // a frame is drawn on the paper
    QCOMPARE(errorOf([&] { surface.element(QStringLiteral("sopra"), 0); }),
             int(runtime::SubscriptOutOfRange));
    QCOMPARE(errorOf([&] { surface.add(roundedFrame(QStringLiteral("sotto"), 0, {})); }),
             int(runtime::InvalidPropertyValue));
}

void TestSurface::fitSingle_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("narrower");
    QTest::addColumn<bool>("smaller");
    QTest::addColumn<bool>("cut");
    QTest::newRow("short") << QStringLiteral("Rossi Anna") << false << false << false;
    QTest::newRow("a little long") << QStringLiteral("Recupero totale") << true << false << false;
    QTest::newRow("long") << QStringLiteral("Recupero totale ora") << true << true << false;
    QTest::newRow("endless") << QString(400, u'M') << true << true << true;
    QTest::newRow("line breaks become blanks") << QStringLiteral("a\r\nb\nc") << false << false << false;
}

void TestSurface::fitSingle() {
    QFETCH(QString, text);
    const Element element = textBox(QStringLiteral("t"), 0, {150, 150, 1150, 255}, verdana(8.25), text);
    const FittedText fitted(element);
    QCOMPARE(fitted.lines().size(), 1);
    QCOMPARE(fitted.isCut(), fitted.lines().first().endsWith(QChar(0x2026)));
    QVERIFY(!fitted.lines().first().contains(u'\n'));
    QTEST(fitted.widthScale() < 1, "narrower");
    QTEST(fitted.sizeScale() < 1, "smaller");
    QTEST(fitted.isCut(), "cut");
    QVERIFY(fitted.widthScale() >= 0.85 && fitted.sizeScale() >= 0.6);
    QVERIFY2(fitted.bounds().width() <= element.width + 2,
             qPrintable(QString::number(fitted.bounds().width())));
}

void TestSurface::fitWrapped_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("smaller");
    QTest::addColumn<bool>("cut");
    QTest::newRow("empty") << QString() << 1 << false << false;
    QTest::newRow("one line") << QStringLiteral("Modalità: Combinata") << 1 << false << false;
    QTest::newRow("two lines") << QStringLiteral("Modalità: Dinamico a carico aggiuntivo 12 kg") << 2 << false
                               << false;
    QTest::newRow("a little long") << QStringLiteral(
                                          "Modalità: Dinamico a carico aggiuntivo, con cintura zavorrata")
                                   << 2 << true << false;
    QTest::newRow("too long") << longText << 3 << true << true;
    QTest::newRow("too many lines") << QStringLiteral("uno\r\ndue\r\ntre\r\nquattro") << 3 << true << true;
    QTest::newRow("no blanks") << QString(300, u'x') << 3 << true << true;
    QTest::newRow("as long as a field takes") << longText.repeated(160) << 3 << true << true;
}

void TestSurface::fitWrapped() {
    QFETCH(QString, text);
    const Element element = wrapped(text);
    const FittedText fitted(element);
    QTEST(int(fitted.lines().size()), "lines");
    QTEST(fitted.sizeScale() < 1, "smaller");
    QTEST(fitted.isCut(), "cut");
    QCOMPARE(fitted.isCut(), fitted.lines().last().endsWith(QChar(0x2026)));
    // Whole lines only, inside the box.
    const QRectF bounds = fitted.bounds();
    QVERIFY(bounds.isEmpty() || element.rect().adjusted(-1, -1, 2, 1).contains(bounds));
    if (!fitted.isCut())
        QCOMPARE(fitted.lines().join(QString()).simplified(), text.simplified());
}

void TestSurface::cutKeepsWholeCharacters() {
    const QString flames = QString::fromUtf8("💪").repeated(200);
    Element element = wrapped(flames);
    element.wordWrap = false;
    QString line = FittedText(element).lines().first();
    line.chop(1);
    QCOMPARE(line, QString::fromUtf8("💪").repeated(line.size() / 2));
}

void TestSurface::alignment_data() {
    QTest::addColumn<int>("alignment");
    QTest::addColumn<double>("leftPart");
    QTest::addColumn<double>("topPart");
    QTest::newRow("left, top") << int(Qt::AlignLeft | Qt::AlignTop) << 0.0 << 0.0;
    QTest::newRow("right, top") << int(Qt::AlignRight | Qt::AlignTop) << 1.0 << 0.0;
    QTest::newRow("centred") << int(Qt::AlignCenter) << 0.5 << 0.5;
}

void TestSurface::alignment() {
    QFETCH(int, alignment);
    QFETCH(double, leftPart);
    QFETCH(double, topPart);
    Element element = textBox(QStringLiteral("t"), 0, {300, 600, 1500, 450}, times(9), QStringLiteral("10 "));
    element.alignment = Qt::Alignment(alignment);
    const QRectF bounds = FittedText(element).bounds();
    QVERIFY(bounds.width() < 400);
    QCOMPARE(bounds.left(), 300 + (1500 - bounds.width()) * leftPart);
    QCOMPARE(bounds.top(), 600 + (450 - bounds.height()) * topPart);
}

void TestSurface::samePageAtEveryScale() {
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("figura.png"));
    QVERIFY(disegni::writeFigure(file, {900, 800}));

    Surface surface;
    surface.width = 6000;
    surface.height = 6000;
    surface.add(roundedFrame(QStringLiteral("cornice"), 0, {203, 197, 5400, 5400}));
    surface.load(surface.add(pictureBox(QStringLiteral("figura"), 0, {355.3, 2004.9, 2280, 1995})), file);
    surface.add(levelRule(QStringLiteral("linea"), 5000)).top = 4321.7;
    surface.add(wrapped(longText, {5000, 1400}));
    Element small = wrapped(longText, {2400, 1800});
    small.name = QStringLiteral("piccolo");
    small.left = 2904.4;
    small.top = 2207.7;
    small.font = times(6.75, true, true);
    surface.add(small);

    const QImage once = raster(surface, 1);
    for (const int ratio : {2, 3, 4}) {
        QImage finer = raster(surface, ratio);
        finer.setDevicePixelRatio(1);
        const QImage reduced = finer.scaled(once.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                   .convertToFormat(once.format());
        const double difference = disegni::greatestBlockDifference(once, reduced, 12);
        QVERIFY2(difference < 12, qPrintable(QStringLiteral("ratio %1: %2").arg(ratio).arg(difference)));
    }
    // The measure does see a page on which one line is broken elsewhere.
    surface.element(QStringLiteral("t")).width -= 300;
    QVERIFY(disegni::greatestBlockDifference(once, raster(surface, 1), 12) > 40);
}

void TestSurface::rasterKnowsItsSize_data() {
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("screen") << 1.0 << QSize(756, 1059);
    QTest::newRow("enlarged screen") << 1.25 << QSize(945, 1324);
    QTest::newRow("printer") << 4.0 << QSize(3024, 4236);
}

void TestSurface::rasterKnowsItsSize() {
    QFETCH(double, ratio);
    const QImage image = raster(Surface(), ratio);
    QTEST(image.size(), "pixels");
    QCOMPARE(image.devicePixelRatio(), ratio);
    // 96 dots to the inch for each device pixel of a logical one: 20 cm wide on paper.
    QVERIFY(std::abs(image.width() * 100.0 / image.dotsPerMeterX() - 20) < 0.01);
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::white));
}

void TestSurface::picturesKeepToTheirBox() {
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("rosso.png"));
    QImage red(40, 90, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(file));
    Surface surface;
    surface.load(surface.add(pictureBox(QStringLiteral("figura"), 0, {300, 600, 2280, 1995})), file);
    for (const int ratio : {1, 4}) {
        const QImage page = raster(surface, ratio);
        const QRect box(20 * ratio, 40 * ratio, 152 * ratio, 133 * ratio);
        for (const QPoint corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
            QCOMPARE(page.pixelColor(corner), QColor(Qt::red));
        QCOMPARE(page.pixelColor(box.topLeft() - QPoint(1, 0)), QColor(Qt::white));
        QCOMPARE(page.pixelColor(box.bottomRight() + QPoint(0, 1)), QColor(Qt::white));
    }
}

void TestSurface::picturesAreNotReadAgain() {
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("figura.png"));
    QVERIFY(disegni::writeFigure(file, {600, 500}));
    Surface surface;
    Element& figure = surface.add(pictureBox(QStringLiteral("figura"), 0, {0, 0, 2280, 1995}));
    surface.load(figure, file);
    const qint64 pixels = figure.picture.stretchedTo({152, 133}).cacheKey();
    surface.load(figure, file);
    QCOMPARE(figure.picture.stretchedTo({152, 133}).cacheKey(), pixels);
    // A file put in its place is noticed.
    QVERIFY(disegni::writeFigure(file, {640, 500}, Qt::green));
    surface.load(figure, file);
    QVERIFY(figure.picture.stretchedTo({152, 133}).cacheKey() != pixels);
}

void TestSurface::badPictures_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");
    QTest::newRow("missing") << QByteArray() << int(runtime::FileNotFound);
    QTest::newRow("text") << QByteArray("non sono un'immagine") << InvalidPicture;
    QTest::newRow("huge claim") << QByteArray::fromHex("ffd8ffc2001108ffdcffdc03012200021101031101")
                                << InvalidPicture;
    QTest::newRow("header alone") << QByteArray("GIF89a\x10\x00\x10\x00", 10) << InvalidPicture;
}

void TestSurface::badPictures() {
    QFETCH(QByteArray, content);
    QTemporaryDir folder;
    const QString good = folder.filePath(QStringLiteral("buona.png"));
    const QString bad = folder.filePath(QStringLiteral("cattiva.JPG"));
    QVERIFY(disegni::writeFigure(good, {200, 200}));
    if (!content.isEmpty()) {
        QFile file(bad);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    Surface surface;
    Element& figure = surface.add(pictureBox(QStringLiteral("figura"), 0, {0, 0, 600, 600}));
    surface.load(figure, good);
    const qint64 before = figure.picture.stretchedTo({40, 40}).cacheKey();
    const int raised = errorOf([&] { surface.load(figure, bad); });
    QTEST(raised, "number");
    QCOMPARE(figure.picture.stretchedTo({40, 40}).cacheKey(), before);
}

void TestSurface::hugePictureIsDecodedScaled() {
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("grande.jpg"));
    QImage image(6000, 5000, QImage::Format_Grayscale8);
    image.fill(200);
    QVERIFY(image.save(file));
    QCOMPARE(Picture::ownSize(file), QSize(6000, 5000));
    const Picture picture = Picture::fromFile(file, {2300, 2300});
    QVERIFY(picture.bytes() < 2'000'000);
}

QTEST_MAIN(TestSurface)
#include "test_surface.moc"
