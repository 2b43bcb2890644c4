// The marked pictures of the muscle map against the hot areas of its control: what one clicks is what lights
// up.
#include "figures/AreeCorpo.h"

#include <QImage>
#include <QTest>

#include <array>
#include <cmath>

namespace {
constexpr int width = 748;
constexpr int height = 796;
constexpr double pixelsPerTwip = static_cast<double>(width) / larghezzaMappa;
constexpr int grownBy = 60; ///< twips by which a mark may leave its rectangles

/// A JPEG rings a little beside every edge; a mark is far beyond that.
constexpr int markDistance = 60;

QImage load(const QString& name) {
    return QImage(QStringLiteral(QUIVERDECK_IMAGES "/BodyMap/") + name).convertToFormat(QImage::Format_RGB32);
}

QImage marked(const char* code) {
    return load(QStringLiteral("Corpo_%1.JPG").arg(QLatin1String(code)));
}

bool differs(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) >
           markDistance;
}

QRect pixels(const AreaCorpo& area, int grow = 0) {
    const double left = (area.left - grow) * pixelsPerTwip;
    const double top = (area.top - grow) * pixelsPerTwip;
    const double right = (area.left + area.width + grow) * pixelsPerTwip;
    const double bottom = (area.top + area.height + grow) * pixelsPerTwip;
    return QRect(QPoint(qRound(left), qRound(top)), QPoint(qRound(right) - 1, qRound(bottom) - 1));
}

/// The topmost area at a pixel, or nullptr.
const AreaCorpo* areaAt(int x, int y) {
    for (const AreaCorpo& area : areeCorpo()) {
        if (pixels(area).contains(x, y))
            return &area;
    }
    return nullptr;
}

struct Share {
    int changed = 0;
    int all = 0;
    double value() const { return all == 0 ? 0.0 : static_cast<double>(changed) / all; }
};
} // namespace

class TestMuscleMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { neutral_ = load(QStringLiteral("corpo.JPG")); }

    void everyPictureHasItsSize() {
        QCOMPARE(neutral_.size(), QSize(width, height));
        for (const char* code : codiciMuscoli())
            QVERIFY2(marked(code).size() == neutral_.size(), code);
    }

    void theNeutralPictureHasNoMark() {
        // Marks are a full red; skin and shade stay near grey.
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const QRgb pixel = neutral_.pixel(x, y);
                QVERIFY(qRed(pixel) - qBlue(pixel) < markDistance);
            }
        }
    }

    void aGroupFillsItsAreas_data() { codes(); }
    void aGroupFillsItsAreas() {
        QFETCH(QString, code);
        const QImage picture = marked(code.toLatin1().constData());
        Share whole;
        for (const AreaCorpo& area : areeCorpo()) {
            if (code != QLatin1String(area.codice))
                continue;
            Share share;
            const QRect box = pixels(area);
            for (int y = box.top(); y <= box.bottom(); ++y) {
                for (int x = box.left(); x <= box.right(); ++x) {
                    if (areaAt(x, y) != &area)
                        continue;
                    ++share.all;
                    share.changed += differs(picture.pixel(x, y), neutral_.pixel(x, y)) ? 1 : 0;
                }
            }
            QVERIFY2(
                share.value() >= 1.0 / 3,
                qPrintable(QStringLiteral("%1(%2): %3").arg(area.nome).arg(area.indice).arg(share.value())));
            whole.all += share.all;
            whole.changed += share.changed;
        }
        QVERIFY2(whole.all > 0, "the code has no area");
        // Calves and thighs leave a gap between the legs inside their own rectangles.
        QVERIFY2(whole.value() >= 0.5, qPrintable(QString::number(whole.value())));
    }

    void aMarkStaysNearItsAreas_data() { codes(); }
    void aMarkStaysNearItsAreas() {
        QFETCH(QString, code);
        const QImage picture = marked(code.toLatin1().constData());
        Share inside;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (!differs(picture.pixel(x, y), neutral_.pixel(x, y)))
                    continue;
                ++inside.all;
                for (const AreaCorpo& area : areeCorpo()) {
                    if (code == QLatin1String(area.codice) && pixels(area, grownBy).contains(x, y)) {
                        ++inside.changed;
                        break;
                    }
                }
            }
        }
        QVERIFY2(inside.value() >= 0.8, qPrintable(QString::number(inside.value())));
    }

private:
    static void codes() {
        QTest::addColumn<QString>("code");
        for (const char* code : codiciMuscoli())
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    QImage neutral_;
};

QTEST_GUILESS_MAIN(TestMuscleMap)
#include "test_muscle_map.moc"
