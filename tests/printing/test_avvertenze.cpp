// The warning sheet: its words, where they stand, and that all of them can be read.

#include "disegni.h"

#include "platform/host/ProgramDirectory.h"
#include "printing/FittedText.h"
#include "printing/SuperficieAvvertenze.h"
#include "support/Errors.h"
#include "support/Suite.h"

#include <QCryptographicHash>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace sheet;

class TestAvvertenze : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        host::setProgramDirectory(folder_->path());
        for (int i = 0; i < 5; ++i)
            QVERIFY(disegni::writeFigure(picture(i), {300, 320}, Qt::white));
    }
    void cleanup() { host::setProgramDirectory({}); }

    void places() {
        const Surface surface = avvertenzeSurface();
        QCOMPARE(surface.pixels(), QSize(756, 1059));
        // h is 15876: info at h - 570, the logos at h - 930 and h - 695, the warnings 1.5 heights from the
        // foot.
        const QList<std::pair<const char*, QPointF>> all{{"avvertenze", {1065, 10858.5}},
                                                         {"info", {8079.75, 15306}},
                                                         {"LogoZentara", {9079.75, 14946}},
                                                         {"logoQD", {610.3, 15181}}};
        for (const auto& [name, at] : all) {
            const QRectF is = surface.element(QString::fromLatin1(name)).rect();
            QVERIFY2((is.topLeft() - at).manhattanLength() < 1e-6, name);
        }
    }

    void words() {
        const Surface surface = avvertenzeSurface();
        QVERIFY(!surface.element(u"info"_s).visible);
        // A digest over every word, oddities included, taken from the sheet in use.
        QByteArray all;
        for (int i = 0; i < 5; ++i)
            all += surface.element(u"Label1"_s, i).text.toUtf8() + '\n';
        all += surface.element(u"avvertenze"_s).text.toUtf8();
        QCOMPARE(QCryptographicHash::hash(all, QCryptographicHash::Sha256).toHex(),
                 QByteArray("42e987c01810a049d495a14579189c4b5efba2aed9ca78ab8cba3626c80c78dd"));
    }

    void everyTextFits() {
        const Surface surface = avvertenzeSurface();
        for (const Element& e : surface.elements()) {
            if (e.kind != Kind::Text || !e.visible)
                continue;
            const FittedText fitted(e);
            const QByteArray what = e.name.toUtf8() + QByteArray::number(e.index);
            QVERIFY2(!fitted.isCut() && fitted.sizeScale() >= 0.85 && fitted.widthScale() == 1,
                     what.constData());
            QVERIFY2(fitted.bounds().width() <= e.width + 1, what.constData());
            QVERIFY2(QRectF(0, 0, surface.width, surface.height).contains(fitted.bounds()), what.constData());
        }
    }

    void nothingIsDrawnOverWords() {
        const Surface surface = avvertenzeSurface();
        const QList<const char*> frames{"Shape1", "Shape2", "Shape4", "Shape5", "Shape3"};
        for (int i = 0; i < 5; ++i) {
            const QRectF frame = surface.element(QString::fromLatin1(frames.at(i))).rect();
            const QRectF words = FittedText(surface.element(u"Label1"_s, i)).bounds();
            QVERIFY2(frame.adjusted(30, 30, -30, -30).contains(words), frames.at(i));
        }
        // Two pictures are higher than their frames, which stay whole on top of them.
        const QImage page = raster(surface, 1);
        QVERIFY(qGray(page.pixel(100, (1725 + 2610) / 15 - 1)) < 60);
    }

    void missingPicture() {
        QVERIFY(QFile::remove(picture(3)));
        QCOMPARE(errorOf([] { return avvertenzeSurface(); }), int(runtime::FileNotFound));
    }

private:
    QString picture(int index) const {
        return folder_->filePath(u"images/avvertenze/posa%1.JPG"_s.arg(index));
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QUIVERDECK_TEST(TestAvvertenze)
#include "test_avvertenze.moc"
