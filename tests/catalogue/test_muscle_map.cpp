// The marked pictures of the muscle map against the hot areas of its control: what one clicks is what lights
// up.
#include "figures/AreeCorpo.h"
#include "support/Suite.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

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
    void initTestCase() {
        neutral_ = load(u"corpo.JPG"_s);
        const auto areas = areeCorpo();
        for (auto area = areas.rbegin(); area != areas.rend(); ++area) { // the first one lies on top
            const QRect box = pixels(*area).intersected({0, 0, width, height});
            for (int y = box.top(); y <= box.bottom(); ++y)
                std::fill_n(topmost_.begin() + y * width + box.left(), box.width(), &*area);
        }
    }

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
                const AreaCorpo* area = topmost_[static_cast<std::size_t>(y * width + x)];
                if (area != nullptr && code == QLatin1String(area->codice)) {
                    shares[area].first += mark ? 1 : 0;
                    ++shares[area].second;
                }
                marked += mark ? 1 : 0;
                near += mark && isNear(code, x, y) ? 1 : 0;
            }
        }
        const auto areas = areeCorpo();
        const auto own = std::count_if(areas.begin(), areas.end(), [&](const AreaCorpo& area) {
            return code == QLatin1String(area.codice);
        });
        QVERIFY(own > 0);
        QCOMPARE(static_cast<qsizetype>(shares.size()), static_cast<qsizetype>(own)); // none is hidden
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
    std::vector<const AreaCorpo*> topmost_ = std::vector<const AreaCorpo*>(width * height); ///< of each pixel
};

QUIVERDECK_TEST(TestMuscleMap)
#include "test_muscle_map.moc"
