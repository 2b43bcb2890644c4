// The drawing program refuses what no body can do; the pictures it drew keep what the catalogue promises.

#include "Catalogue.h"
#include "Composer.h"
#include "Jpeg.h"
#include "PoseCheck.h"
#include "PoseFile.h"
#include "Solver.h"
#include "support/Suite.h"

#include <QDir>
#include <QImage>

using namespace Qt::StringLiterals;

using namespace figures;

namespace {

constexpr const char* standing = "facing 180\npelvis -2 0 110\nfoot.both plate 0 11\n";

/// What the drawing says of a pose: nothing when it draws it.
QString complaint(const QString& text) {
    try {
        const Pose pose = PoseFile::parse(text.toStdString(), "pose");
        static_cast<void>(Composer::draw(pose, 0, Composer::width, Composer::height, 1));
    } catch (const PoseError& e) {
        return QString::fromStdString(e.what());
    }
    return {};
}

template <class Test> int pixelsThat(const QImage& image, Test test) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            found += test(image.pixel(x, y)) ? 1 : 0;
    return found;
}

QDir figureFolder() {
    return QDir(QStringLiteral(QUIVERDECK_IMAGES "/figure"));
}

} // namespace

class TestFigures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refuses_data() {
        QTest::addColumn<QString>("pose");
        QTest::addColumn<QString>("message");
        const QString base = QString::fromLatin1(standing);
        const auto row = [&base](const char* name, const char* change, const char* message) {
            QTest::newRow(name) << base + QString::fromLatin1(change) << QString::fromLatin1(message);
        };
        row("sound", "", "");
        row("knee bent too far", "leg.left flex 60 knee 175", "knee.left");
        row("hip too far back", "leg.left flex -60 knee 5", "hip.left flexion");
        row("spine broken", "spine 100 0 0", "spine bend");
        row("head turned round", "head 0 0 120", "head turn");
        row("elbow", "arm.right elev 20 elbow 170", "elbow.right");
        row("foot out of reach", "foot.left floor 120 10", "foot.left cannot reach");
        row("hand out of reach", "hand.left world 120 0 120", "hand.left cannot reach");
        row("floats", "pelvis -2 0 180\nleg.both flex 2", "floats");
        row("sinks into the plate", "pelvis -2 0 95\nleg.both flex 2", "sinks");
        row("leans into the column", "facing 0\npelvis 30 0 108\ntilt 30\nfoot.both plate 30 11", "column");
        row("beside the plate", "foot.both plate 46 11", "beside the plate");
        row("leaves the frame", "with mat x -400", "leaves the frame");
        row("a word too many", "knee.left 1 0 0 4", "\"4\" is too much");
        row("strap too short", "with straps y 8\npelvis -16 0 70\ntilt 60\narm.both elev 40 plane 0",
            "strap would be");
        row("unknown statement", "jump 3", "pose:4: unknown statement");
        row("no number", "tilt steep", "pose:4: \"steep\" is not a number");
        row("unknown accessory", "with piano", "piano");
        row("unknown base", "like nobody", "cannot be read");
        row("second position", "second\nspine 100 0 0", "second position: spine bend");
    }

    void refuses() {
        QFETCH(QString, pose);
        QFETCH(QString, message);
        const QString said = complaint(pose);
        QVERIFY2(message.isEmpty() ? said.isEmpty() : said.contains(message), qPrintable(said));
    }

    void handsAndFeetReachTheirPlaces() {
        const Pose pose = PoseFile::parse(
            "pelvis -3 0 104\ntilt 8\nfoot.both plate 2 11 turn 0\nhand.both bar 20\n", "pose");
        const Room room(pose);
        const Skeleton s = Solver(room, pose).solve(pose.body);
        for (int side : {Left, Right}) {
            const Vec3 bar{Room::barX, 20 * outward(side), Room::barHeight};
            QVERIFY(length(s.gripPoint(side) - bar) < 0.5F);
            const auto& leg = s.leg[static_cast<std::size_t>(side)];
            const Vec3 ankle{2, 11 * outward(side), Room::plateTop + body::ankleHeight};
            QVERIFY(length(leg.foot.origin - ankle) < 0.5F);
            QVERIFY(std::fabs(length(leg.thigh.to - leg.thigh.from) - body::thigh) < 0.1F);
            QVERIFY(std::fabs(length(leg.shank.to - leg.shank.from) - body::shank) < 0.1F);
        }
    }

    void tintsWhatIsTrained() {
        const Pose pose = PoseFile::parse(standing, "pose");
        const auto warm = [&pose](const char* code) {
            const QImage image =
                Composer::draw(pose, 1U << *muscleIndex(code), Composer::width, Composer::height, 1);
            return pixelsThat(image, [](QRgb c) { return qRed(c) > qGreen(c) + 90; });
        };
        QVERIFY(warm("QUA") > 3000);
        QVERIFY(warm("DAL") > 500);
        QVERIFY(!muscleIndex("DEL"));
    }

    void everyRowHasItsPicture() {
        QStringList wanted;
        for (const auto& r : Catalogue::read(QUIVERDECK_CATALOGUE)) {
            wanted << QString::fromStdString(r.code) + u".JPG"_s;
            QVERIFY2(r.machine == (r.code[0] == 'Q' ? "QUIVR" : "GLIDR"), r.code.c_str());
        }
        QVERIFY(!wanted.isEmpty());
        wanted.sort();
        QCOMPARE(figureFolder().entryList({u"*.JPG"_s}, QDir::Files, QDir::Name), wanted);
    }

    void picturesAreSoundAndDistinct() {
        constexpr int wide = 48;
        constexpr int high = 45;
        std::vector<std::pair<QString, QImage>> small;
        for (const auto& info : figureFolder().entryInfoList({u"*.JPG"_s}, QDir::Files, QDir::Name)) {
            QVERIFY2(info.size() <= Jpeg::heaviest, qPrintable(info.fileName()));
            const QImage image = QImage(info.filePath()).convertToFormat(QImage::Format_RGB32);
            QCOMPARE(image.size(), QSize(Composer::width, Composer::height));
            QVERIFY(qGray(image.pixel(2, 2)) > 250); // white ground
            const QImage thumb = image.scaled(150, 150, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const int dark = pixelsThat(thumb, [](QRgb c) { return qGray(c) < 120; });
            QVERIFY2(dark > 500, qPrintable(u"%1: %2 dark points"_s.arg(info.fileName()).arg(dark)));
            small.emplace_back(info.fileName(),
                               image.scaled(wide, high, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        }
        // Difference of two pictures: mean over the points that are not white in both.
        const auto difference = [](const QImage& a, const QImage& b) {
            long sum = 0;
            long points = 1;
            for (int y = 0; y < high; ++y) {
                for (int x = 0; x < wide; ++x) {
                    const QRgb p = a.pixel(x, y);
                    const QRgb q = b.pixel(x, y);
                    if (qGray(p) > 250 && qGray(q) > 250)
                        continue;
                    sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                           std::abs(qBlue(p) - qBlue(q));
                    ++points;
                }
            }
            return static_cast<double>(sum) / static_cast<double>(3 * points);
        };
        for (std::size_t i = 0; i < small.size(); ++i) {
            const QImage mirrored = small[i].second.mirrored(true, false);
            for (std::size_t j = i + 1; j < small.size(); ++j) {
                const double d = std::min(difference(small[i].second, small[j].second),
                                          difference(mirrored, small[j].second));
                QVERIFY2(d > 5.0,
                         qPrintable(u"%1 repeats %2 (%3)"_s.arg(small[i].first, small[j].first).arg(d)));
            }
        }
    }

    void warningPostures_data() {
        QTest::addColumn<QSize>("twips");
        QTest::newRow("posa0") << QSize(1830, 2730);
        QTest::newRow("posa1") << QSize(1755, 2895);
        QTest::newRow("posa2") << QSize(2235, 2145);
        QTest::newRow("posa3") << QSize(2235, 2145);
        QTest::newRow("posa4") << QSize(2235, 2145);
    }

    void warningPostures() {
        QFETCH(QSize, twips);
        const QImage image(QStringLiteral(QUIVERDECK_IMAGES "/avvertenze/%1.JPG")
                               .arg(QLatin1String(QTest::currentDataTag())));
        QCOMPARE(image.size(), twips * 4 / 15);
        const int red =
            pixelsThat(image, [](QRgb c) { return qRed(c) > 170 && qGreen(c) < 70 && qBlue(c) < 80; });
        QVERIFY2(red > image.width() * image.height() / 100, "the sign of no is missing");
    }
};

QUIVERDECK_TEST(TestFigures)
#include "test_artwork_figures.moc"
