// The sheet as data, its text layout and its pictures.

#include "disegni.h"

#include "platform/pictures/PictureFile.h"
#include "printing/FittedText.h"
#include "printing/Painting.h"
#include "printing/Stile.h"
#include "support/Errors.h"
#include "support/Suite.h"

#include <QPainter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace sheet;

namespace {

const QString longText =
    u"Mantenere la schiena dritta, le ginocchia leggermente flesse e lo sguardo in avanti; respirare con "
    "regolarità e non irrigidire le spalle. Perché l'esercizio sia efficace, fermarsi al primo fastidio."_s;

Element wrapped(const QString& text) {
    Element element = textBox(u"t"_s, 0, {300, 300, 2535, 480}, verdana(8.25), text);
    element.wordWrap = true;
    return element;
}

} // namespace

class TestSurface : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void elements() {
        Surface surface;
        surface.add(roundedFrame(u"sotto"_s, 0, {0, 0, 1000, 1000}));
        surface.add(textBox(u"sopra"_s, 3, {500, 500, 1000, 1000}, times(9)));
        QCOMPARE(surface.elementAt({700, 700})->name, u"sopra"_s);
        surface.element(u"sopra"_s, 3).visible = false;
        QVERIFY(!surface.elementAt({700, 700})); // a frame is drawn on the paper
        QCOMPARE(errorOf([&] { return surface.element(u"sopra"_s, 0); }), int(runtime::SubscriptOutOfRange));
        QCOMPARE(errorOf([&] { return surface.add(roundedFrame(u"sotto"_s, 0, {})); }),
                 int(runtime::InvalidPropertyValue));
    }

    void fitSingle_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("narrower");
        QTest::addColumn<bool>("smaller");
        QTest::addColumn<bool>("cut");
        QTest::newRow("a little long") << u"Recupero totale"_s << true << false << false;
        QTest::newRow("long") << u"Recupero totale ora"_s << true << true << false;
        QTest::newRow("endless") << QString(400, u'M') << true << true << true;
        QTest::newRow("line breaks become blanks") << u"a\r\nb\nc"_s << false << false << false;
    }
    void fitSingle() {
        QFETCH(QString, text);
        const Element element = textBox(u"t"_s, 0, {150, 150, 1150, 255}, verdana(8.25), text);
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

    void fitWrapped_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("lines");
        QTest::addColumn<bool>("smaller");
        QTest::addColumn<bool>("cut");
        const auto mode = u"Modalità: Dinamico a carico aggiuntivo"_s;
        QTest::newRow("empty") << QString() << 1 << false << false;
        QTest::newRow("two lines") << mode + u" 12 kg"_s << 2 << false << false;
        QTest::newRow("a little long") << mode + u", con cintura zavorrata"_s << 2 << true << false;
        QTest::newRow("too long") << longText << 3 << true << true;
        QTest::newRow("too many lines") << u"uno\r\ndue\r\ntre\r\nquattro"_s << 3 << true << true;
        QTest::newRow("no blanks") << QString(300, u'x') << 3 << true << true;
        QTest::newRow("as long as a field takes") << longText.repeated(160) << 3 << true << true;
    }
    void fitWrapped() {
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

    void cutKeepsWholeCharacters() {
        Element element = wrapped(QString::fromUtf8("💪").repeated(200));
        element.wordWrap = false;
        QString line = FittedText(element).lines().first();
        line.chop(1);
        QCOMPARE(line, QString::fromUtf8("💪").repeated(line.size() / 2));
    }

    void alignment_data() {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<double>("leftPart");
        QTest::addColumn<double>("topPart");
        QTest::newRow("left, top") << int(Qt::AlignLeft | Qt::AlignTop) << 0.0 << 0.0;
        QTest::newRow("right, top") << int(Qt::AlignRight | Qt::AlignTop) << 1.0 << 0.0;
        QTest::newRow("centred") << int(Qt::AlignCenter) << 0.5 << 0.5;
    }
    void alignment() {
        QFETCH(int, alignment);
        QFETCH(double, leftPart);
        QFETCH(double, topPart);
        Element element = textBox(u"t"_s, 0, {300, 600, 1500, 450}, times(9), u"10 "_s);
        element.alignment = Qt::Alignment(alignment);
        const QRectF bounds = FittedText(element).bounds();
        QVERIFY(bounds.width() < 400);
        QCOMPARE(bounds.left(), 300 + (1500 - bounds.width()) * leftPart);
        QCOMPARE(bounds.top(), 600 + (450 - bounds.height()) * topPart);
    }

    void rasterKnowsItsSize_data() {
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QSize>("pixels");
        QTest::newRow("enlarged screen") << 1.25 << QSize(945, 1324);
        QTest::newRow("printer") << 4.0 << QSize(3024, 4236);
    }
    void rasterKnowsItsSize() {
        QFETCH(double, ratio);
        const QImage image = raster(Surface(), ratio);
        QTEST(image.size(), "pixels");
        QCOMPARE(image.devicePixelRatio(), ratio);
        // 96 dots to the inch for each device pixel of a logical one: 20 cm wide on paper.
        QVERIFY(std::abs(image.width() * 100.0 / image.dotsPerMeterX() - 20) < 0.01);
        QCOMPARE(image.pixelColor(10, 10), QColor(Qt::white));
    }

    void picturesKeepToTheirBox() {
        const QString file = folder_->filePath(u"rosso.png"_s);
        QImage red(40, 90, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(file));
        Surface surface;
        surface.load(surface.add(pictureBox(u"figura"_s, 0, {300, 600, 2280, 1995})), file);
        for (const int ratio : {1, 4}) {
            const QImage page = raster(surface, ratio);
            const QRect box(20 * ratio, 40 * ratio, 152 * ratio, 133 * ratio);
            for (const QPoint corner : {box.topLeft(), box.bottomRight()})
                QCOMPARE(page.pixelColor(corner), QColor(Qt::red));
            QCOMPARE(page.pixelColor(box.topLeft() - QPoint(1, 0)), QColor(Qt::white));
            QCOMPARE(page.pixelColor(box.bottomRight() + QPoint(0, 1)), QColor(Qt::white));
        }
    }

    void picturesAreNotReadAgain() {
        const QString file = figure({600, 500});
        Surface surface;
        Element& shown = surface.add(pictureBox(u"figura"_s, 0, {0, 0, 2280, 1995}));
        surface.load(shown, file);
        const qint64 pixels = shown.picture.stretchedTo({152, 133}).cacheKey();
        surface.load(shown, file);
        QCOMPARE(shown.picture.stretchedTo({152, 133}).cacheKey(), pixels);
        // A file put in its place is noticed.
        figure({640, 500});
        surface.load(shown, file);
        QVERIFY(shown.picture.stretchedTo({152, 133}).cacheKey() != pixels);
    }

    void badPictures_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("number");
        QTest::newRow("missing") << QByteArray() << int(runtime::FileNotFound);
        QTest::newRow("text") << QByteArray("non sono un'immagine") << pictures::PictureFile::badPicture;
        QTest::newRow("huge claim") << QByteArray::fromHex("ffd8ffc2001108ffdcffdc03012200021101031101")
                                    << pictures::PictureFile::badPicture;
        QTest::newRow("header alone")
            << QByteArray("GIF89a\x10\x00\x10\x00", 10) << pictures::PictureFile::badPicture;
    }
    void badPictures() {
        QFETCH(QByteArray, content);
        const QString bad = folder_->filePath(u"cattiva.JPG"_s);
        if (!content.isEmpty()) {
            QFile file(bad);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        Surface surface;
        Element& shown = surface.add(pictureBox(u"figura"_s, 0, {0, 0, 600, 600}));
        surface.load(shown, figure({200, 200}));
        const qint64 before = shown.picture.stretchedTo({40, 40}).cacheKey();
        QTEST(errorOf([&] { surface.load(shown, bad); }), "number");
        QCOMPARE(shown.picture.stretchedTo({40, 40}).cacheKey(), before);
    }

    void hugePictureIsDecodedScaled() {
        const QString file = folder_->filePath(u"grande.jpg"_s);
        QImage image(6000, 5000, QImage::Format_Grayscale8);
        image.fill(200);
        QVERIFY(image.save(file));
        QCOMPARE(Picture::ownSize(file), QSize(6000, 5000));
        QVERIFY(Picture::fromFile(file, {2300, 2300}).bytes() < 2'000'000);
    }

private:
    QString figure(QSize size) const {
        QString file = folder_->filePath(u"figura.png"_s);
        return disegni::writeFigure(file, size) ? file : QString();
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QUIVERDECK_TEST(TestSurface)
#include "test_surface.moc"
