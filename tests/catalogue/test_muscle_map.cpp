// The marked pictures of the muscle map against the hot areas of its control: what one clicks is what lights
// up.
#include "figures/AreeCorpo.h"
#include "support/Suite.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

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

/// Whether a pixel lies in or beside one of the code's areas.
bool isNear(const QString& code, int x, int y) {
    const auto areas = areeCorpo();
    return std::any_of(areas.begin(), areas.end(), [&](const AreaCorpo& area) {
        return code == QLatin1String(area.codice) && pixels(area, grownBy).contains(x, y);
    });
}
} // namespace

class TestMuscleMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { neutral_ = load(u"corpo.JPG"_s); }

    void theNeutralPictureHasNoMark() {
        QCOMPARE(neutral_.size(), QSize(width, height));
        // Marks are a full red; skin and shade stay near grey.
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const QRgb pixel = neutral_.pixel(x, y);
                QVERIFY(qRed(pixel) - qBlue(pixel) < markDistance);
            }
        }
    }

    void aMarkFillsItsAreasAndNothingElse_data() {
        QTest::addColumn<QString>("code");
        for (const char* code : codiciMuscoli())
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    void aMarkFillsItsAreasAndNothingElse() {
        QFETCH(QString, code);
        const QImage picture = load(u"Corpo_%1.JPG"_s.arg(code));
        QCOMPARE(picture.size(), neutral_.size());
        std::map<const AreaCorpo*, std::pair<int, int>> shares; // marked, of all
        int marked = 0;
        int near = 0;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const bool mark = differs(picture.pixel(x, y), neutral_.pixel(x, y));
                const AreaCorpo* area = areaAt(x, y);
                if (area != nullptr && code == QLatin1String(area->codice)) {
                    shares[area].first += mark ? 1 : 0;
                    ++shares[area].second;
                }
                marked += mark ? 1 : 0;
                near += mark && isNear(code, x, y) ? 1 : 0;
            }
        }
        QVERIFY2(!shares.empty(), "the code has no area");
        std::pair<int, int> whole;
        for (const auto& [area, share] : shares) {
            QVERIFY2(share.first * 3 >= share.second, area->nome);
            whole = {whole.first + share.first, whole.second + share.second};
        }
        // Calves and thighs leave a gap between the legs inside their own rectangles.
        QVERIFY2(whole.first * 2 >= whole.second, qPrintable(QString::number(whole.first)));
        QVERIFY2(near >= marked * 0.8, qPrintable(u"%1 of %2"_s.arg(near).arg(marked)));
    }

private:
    QImage neutral_;
};

QUIVERDECK_TEST(TestMuscleMap)
#include "test_muscle_map.moc"
