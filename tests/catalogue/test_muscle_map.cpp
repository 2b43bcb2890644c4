// The marked pictures of the muscle map against the hot areas of its control: what one clicks is what lights
// up.
#include "figures/AreeCorpo.h"
#include "support/Suite.h"

#include <QImage>
#include <QPainter>

#include <map>

using namespace Qt::StringLiterals;

namespace {
QImage load(const QString& name) {
    return QImage(QStringLiteral(QUIVERDECK_IMAGES "/BodyMap/") + name).convertToFormat(QImage::Format_RGB32);
}

/// A JPEG rings a little beside every edge; a mark is far beyond that.
bool differs(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) > 60;
}

/// The areas of a code (all if it is empty), grown on each side by twips and filled with their places in the
/// list, from 1. The first one lies on top.
QImage painted(const QString& code, int grown) {
    QImage image(748, 796, QImage::Format_RGB32);
    image.fill(0);
    QPainter painter(&image);
    painter.scale(748.0 / larghezzaMappa, 748.0 / larghezzaMappa);
    const auto areas = areeCorpo();
    for (auto i = areas.size(); i-- > 0;) {
        const AreaCorpo& a = areas[i];
        if (code.isEmpty() || code == QLatin1String(a.codice))
            painter.fillRect(QRect(a.left, a.top, a.width, a.height).adjusted(-grown, -grown, grown, grown),
                             QRgb(i + 1));
    }
    return image;
}
} // namespace

class TestMuscleMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMarkFillsItsAreasAndNothingElse_data() {
        QTest::addColumn<QString>("code");
        for (const char* code : codiciMuscoli())
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    void aMarkFillsItsAreasAndNothingElse() {
        QFETCH(QString, code);
        const QImage neutral = load(u"corpo.JPG"_s);
        const QImage picture = load(u"Corpo_%1.JPG"_s.arg(code));
        const QImage topmost = painted({}, 0);
        const QImage reach = painted(code, 60); // by so much a mark may leave its rectangles
        QCOMPARE(picture.size(), topmost.size());
        QCOMPARE(neutral.size(), topmost.size());
        std::map<std::size_t, std::pair<int, int>> shares; // of each area's pixels: marked, all
        for (std::size_t i = 0; i < areeCorpo().size(); ++i)
            if (code == QLatin1String(areeCorpo()[i].codice))
                shares[i + 1] = {0, 0};
        int marked = 0;
        int near = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const int mark = differs(picture.pixel(x, y), neutral.pixel(x, y)) ? 1 : 0;
                marked += mark;
                near += (reach.pixel(x, y) & 0xff) != 0 ? mark : 0;
                if (const auto share = shares.find(topmost.pixel(x, y) & 0xff); share != shares.end()) {
                    share->second.first += mark;
                    ++share->second.second;
                }
            }
        }
        QVERIFY(!shares.empty());
        for (const auto& [area, share] :
             shares) // none is hidden; calves and thighs leave a gap between the legs
            QVERIFY2(share.second > 0 && share.first * 3 >= share.second, areeCorpo()[area - 1].nome);
        QVERIFY2(near >= marked * 0.8, qPrintable(u"%1 of %2"_s.arg(near).arg(marked)));
    }
};

QUIVERDECK_TEST(TestMuscleMap)
#include "test_muscle_map.moc"
