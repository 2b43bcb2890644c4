// The marked pictures of the muscle map against the hot areas of its control: what one clicks is what lights
// up.
#include "figures/AreeCorpo.h"
#include "support/Suite.h"

#include <QImage>
#include <QRect>

#include <map>

using namespace Qt::StringLiterals;

class TestMuscleMap : public QObject {
    Q_OBJECT

    /// A JPEG rings a little beside every edge; a mark is far beyond that.
    static bool differs(QRgb a, QRgb b) {
        return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) >
               60;
    }

private Q_SLOTS:
    void aMarkFillsItsAreasAndNothingElse() {
        const QString file = QStringLiteral(QUIVERDECK_IMAGES "/BodyMap/%1.JPG");
        const QImage neutral(file.arg(u"corpo"_s));
        QCOMPARE(neutral.size(), QSize(748, 796));
        for (const QByteArray code : codiciMuscoli()) {
            const QImage picture(file.arg(u"Corpo_"_s + code));
            QCOMPARE(picture.size(), neutral.size());
            std::map<const AreaCorpo*, std::pair<int, int>> shares; // of each area's points: marked, all
            int marked = 0;
            int near = 0;
            for (int y = 0; y < picture.height(); y += 3) {
                for (int x = 0; x < picture.width(); x += 3) {
                    const QPoint at(x, y);
                    const int mark = differs(picture.pixel(at), neutral.pixel(at)) ? 1 : 0;
                    const AreaCorpo* clicked = nullptr; // the first one lies on top
                    bool reached = false;
                    for (const AreaCorpo& area : areeCorpo()) {
                        const QRect box(area.left, area.top, area.width, area.height);
                        const QPoint twips = at * larghezzaMappa / 748;
                        if (clicked == nullptr && box.contains(twips))
                            clicked = &area;
                        // By so much a mark may leave its rectangles.
                        reached |= code == area.codice && box.adjusted(-60, -60, 60, 60).contains(twips);
                    }
                    marked += mark;
                    near += reached ? mark : 0;
                    shares[clicked].first += mark;
                    ++shares[clicked].second;
                }
            }
            // No area is hidden; calves and thighs leave a gap between the legs.
            for (const AreaCorpo& area : areeCorpo())
                if (const auto& [own, all] = shares[&area]; code == area.codice)
                    QVERIFY2(all > 0 && own * 3 >= all, area.nome);
            QVERIFY2(near >= marked * 0.8, code);
        }
    }
};

QUIVERDECK_TEST(TestMuscleMap)
#include "test_muscle_map.moc"
