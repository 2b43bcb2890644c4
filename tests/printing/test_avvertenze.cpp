// The warning sheet: its words, where they stand, and that all of them can be read.

#include "disegni.h"

#include "platform/host/ProgramDirectory.h"
#include "platform/runtime/Error.h"
#include "printing/FittedText.h"
#include "printing/Painting.h"
#include "printing/SuperficieAvvertenze.h"

#include <QCryptographicHash>
#include <QTemporaryDir>
#include <QTest>

using namespace sheet;

class TestAvvertenze : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { host::setProgramDirectory({}); }
    void places();
    void words();
    void everyTextFits();
    void nothingIsDrawnOverWords();
    void missingPicture();

private:
    std::unique_ptr<QTemporaryDir> mFolder;
};

void TestAvvertenze::init() {
    mFolder = std::make_unique<QTemporaryDir>();
    host::setProgramDirectory(mFolder->path());
    for (int i = 0; i < 5; ++i)
        QVERIFY(disegni::writeFigure(mFolder->filePath(QStringLiteral("images/avvertenze/posa%1.JPG").arg(i)),
                                     {300, 320}, Qt::white));
}

void TestAvvertenze::places() {
    const Surface surface = avvertenzeSurface();
    QCOMPARE(surface.pixels(), QSize(756, 1059));
    struct Expected {
        const char* name;
        int index;
        QRectF box;
    };
    // Footer: h is 15876; info at h - 570, the logos at h - 930 and h - 695, the warnings 1.5 heights from
    // the foot.
    const Expected all[]{
        {"UtenteEti", 0, {3030, 585, 5835, 375}},        {"Shape1", 0, {255, 1725, 5205, 2610}},
        {"Shape2", 0, {5730, 2580, 4920, 2730}},         {"Shape3", 0, {300, 7680, 5145, 2460}},
        {"Shape4", 0, {270, 4695, 5190, 2640}},          {"Shape5", 0, {5655, 5610, 4995, 2610}},
        {"Image1", 1, {5865, 2565, 1755, 2895}},         {"Label1", 4, {2535, 7785, 3030, 2115}},
        {"avvertenze", 0, {1065, 10858.5, 9645, 3345}},  {"info", 0, {8079.75, 15306, 2775, 285}},
        {"LogoZentara", 0, {9079.75, 14946, 1755, 540}}, {"logoQD", 0, {610.3, 15181, 1350, 405}},
    };
    for (const Expected& row : all) {
        const QRectF is = surface.element(QString::fromLatin1(row.name), row.index).rect();
        QVERIFY2((is.topLeft() - row.box.topLeft()).manhattanLength() < 1e-6 && is.size() == row.box.size(),
                 row.name);
    }
}

void TestAvvertenze::words() {
    const Surface surface = avvertenzeSurface();
    const auto text = [&](const char* name, int index = 0) {
        return surface.element(QString::fromLatin1(name), index).text;
    };
    QCOMPARE(text("UtenteEti"), QStringLiteral("ISTRUZIONI D'USO"));
    QCOMPARE(text("info"), QStringLiteral("Printed with: Quiver-Deck"));
    QVERIFY(!surface.element(QStringLiteral("info")).visible);
    // The oddities of the wording stay.
    QVERIFY(text("Label1", 0).endsWith(QStringLiteral("per un buon allungamento")));
    QVERIFY(text("Label1", 3).endsWith(QStringLiteral("in questa posizione")));
    QVERIFY(text("Label1", 4).startsWith(QStringLiteral("In tutti le posizioni o esercizi")));
    QCOMPARE(text("avvertenze").count(u'\n'), 5);
    QVERIFY(text("avvertenze").contains(QStringLiteral("il massagio è sconsigliato")));
    QVERIFY(text("avvertenze").contains(QStringLiteral("fasce in dotazione. \n- Non utilizzare")));

    // Lengths in characters and a digest over every word, taken from the sheet in use.
    const QList<int> lengths{337, 186, 174, 299, 383, 1579};
    QByteArray all;
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(int(text("Label1", i).size()), lengths.at(i));
        all += text("Label1", i).toUtf8() + '\n';
    }
    QCOMPARE(int(text("avvertenze").size()), lengths.at(5));
    all += text("avvertenze").toUtf8();
    QCOMPARE(QCryptographicHash::hash(all, QCryptographicHash::Sha256).toHex(),
             QByteArray("42e987c01810a049d495a14579189c4b5efba2aed9ca78ab8cba3626c80c78dd"));
}

void TestAvvertenze::everyTextFits() {
    const Surface surface = avvertenzeSurface();
    for (const Element& e : surface.elements()) {
        if (e.kind != Kind::Text || !e.visible)
            continue;
        const FittedText fitted(e);
        const QByteArray what = e.name.toUtf8() + QByteArray::number(e.index);
        QVERIFY2(!fitted.isCut() && fitted.sizeScale() >= 0.85 && fitted.widthScale() == 1, what.constData());
        QVERIFY2(fitted.bounds().width() <= e.width + 1, what.constData());
        QVERIFY2(QRectF(0, 0, surface.width, surface.height).contains(fitted.bounds()), what.constData());
    }
}

void TestAvvertenze::nothingIsDrawnOverWords() {
    const Surface surface = avvertenzeSurface();
    const QList<const char*> frames{"Shape1", "Shape2", "Shape4", "Shape5", "Shape3"};
    for (int i = 0; i < 5; ++i) {
        const QRectF frame = surface.element(QString::fromLatin1(frames.at(i))).rect();
        const QRectF words = FittedText(surface.element(QStringLiteral("Label1"), i)).bounds();
        QVERIFY2(frame.adjusted(30, 30, -30, -30).contains(words), frames.at(i));
    }
    // Two pictures are higher than their frames, which stay whole on top of them.
    const QImage page = raster(surface, 1);
    QVERIFY(qGray(page.pixel(100, (1725 + 2610) / 15 - 1)) < 60);
}

void TestAvvertenze::missingPicture() {
    QVERIFY(QFile::remove(mFolder->filePath(QStringLiteral("images/avvertenze/posa3.JPG"))));
    try {
        avvertenzeSurface();
        QFAIL("a missing picture was not reported");
    } catch (const runtime::Error& error) {
        QCOMPARE(error.number(), int(runtime::FileNotFound));
    }
}

QTEST_MAIN(TestAvvertenze)
#include "test_avvertenze.moc"
