// The drawing program refuses what no body can do; the pictures it drew keep what the catalogue promises.

#include "Catalogue.h"
#include "Composer.h"
#include "Jpeg.h"
#include "PoseFile.h"
#include "support/Suite.h"

#include <QDir>
#include <QImage>

using namespace Qt::StringLiterals;
using namespace figures;

class TestFigures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refuses() {
        const std::string sound = "facing 180\npelvis -2 0 110\nfoot.both plate 0 11\n";
        // A change behind it, and what the drawing says of it.
        for (const auto& [change, message] :
             {std::pair("", "nothing"),
              {"leg.left flex 60 knee 175", "knee.left"},
              {"foot.left floor 120 10", "foot.left cannot reach"},
              {"hand.left world 120 0 120", "hand.left cannot reach"},
              {"pelvis -2 0 180\nleg.both flex 2", "floats"},
              {"pelvis -2 0 95\nleg.both flex 2", "sinks"},
              {"facing 0\npelvis 30 0 108\ntilt 30\nfoot.both plate 30 11", "column"},
              {"foot.both plate 46 11", "beside the plate"},
              {"with mat x -400", "leaves the frame"},
              {"knee.left 1 0 0 4", "\"4\" is too much"},
              {"with straps y 8\npelvis -16 0 70\ntilt 60\narm.both elev 40 plane 0", "strap would be"},
              {"tilt steep", "pose:4: \"steep\" is not a number"},
              {"second\nspine 100 0 0", "second position: spine bend"}}) {
            std::string said = "nothing";
            try {
                static_cast<void>(Composer::draw(PoseFile::parse(sound + change, "pose"), 0, Composer::width,
                                                 Composer::height, 1));
            } catch (const PoseError& error) {
                said = error.what();
            }
            QVERIFY2(said.find(message) != std::string::npos, said.c_str());
        }
    }

    /// One for each row of the catalogue, and none twice.
    void picturesAreSoundAndDistinct() {
        std::vector<std::pair<QString, QImage>> small; // 48 x 45 points of grey
        const QDir folder(QStringLiteral(QUIVERDECK_IMAGES "/figure"));
        for (const Row& row : Catalogue::read(QUIVERDECK_CATALOGUE)) {
            const QFileInfo file(folder, QString::fromStdString(row.code) + u".JPG"_s);
            const QImage image(file.filePath());
            // White ground, and no more bytes than shall ship.
            QVERIFY2(qGray(image.pixel(2, 2)) > 250 && file.size() <= Jpeg::heaviest, row.code.c_str());
            QCOMPARE(image.size(), QSize(Composer::width, Composer::height));
            small.emplace_back(file.fileName(), image.scaled(48, 45, {}, Qt::SmoothTransformation)
                                                    .convertToFormat(QImage::Format_Grayscale8));
            const QImage& tiny = small.back().second;
            const uchar* grey = tiny.constBits();
            QVERIFY2(std::count_if(grey, grey + tiny.sizeInBytes(), [](uchar g) { return g < 120; }) > 20,
                     row.code.c_str());
        }
        QCOMPARE(folder.entryList(QDir::Files).size(), static_cast<qsizetype>(small.size()));
        // Mean over the points that are not white in both.
        const auto difference = [](const QImage& a, const QImage& b) {
            double sum = 0;
            int points = 1;
            for (int at = 0; at < 48 * 45; ++at) {
                sum += std::abs(a.constBits()[at] - b.constBits()[at]);
                points += std::min(a.constBits()[at], b.constBits()[at]) <= 250;
            }
            return sum / points;
        };
        for (auto one = small.begin(); one != small.end(); ++one)
            for (const QImage& look : {one->second, one->second.mirrored(true, false)})
                for (auto other = one + 1; other != small.end(); ++other)
                    QVERIFY2(difference(look, other->second) > 5, qPrintable(one->first + other->first));
    }
};

QUIVERDECK_TEST(TestFigures)
#include "test_artwork_figures.moc"
