// The sheet's text layout, its pictures, and the warning sheet.

#include "SheetTest.h"

#include "platform/pictures/PictureFile.h"
#include "printing/Painting.h"
#include "printing/Stile.h"
#include "printing/SuperficieAvvertenze.h"
#include "support/Files.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;
using namespace sheet;

class TestSurface : public SheetTest {
    Q_OBJECT

private Q_SLOTS:
    void textsFit() {
        const QString mode = u"Modalità: Dinamico a carico aggiuntivo"_s;
        const QString sentence = u"Perché l'esercizio sia efficace, fermarsi al primo fastidio. "_s;
        const QString wide = QString::fromUtf8("𝕎").repeated(200);
        // Wrapped or not, lines, and what is done to a text: n narrower, s smaller, c cut.
        for (const auto& [wrapped, text, done] : std::initializer_list<std::tuple<bool, QString, QString>>{
                 {false, u"a\r\nb\nc"_s, u"1"_s}, // line breaks become blanks
                 {false, u"Recupero totale"_s, u"1n"_s},
                 {false, u"Recupero totale ora"_s, u"1ns"_s},
                 {false, wide, u"1nsc"_s},
                 {true, {}, u"1"_s},
                 {true, mode + u" 12 kg"_s, u"2"_s},
                 {true, mode + u", con cintura zavorrata"_s, u"2s"_s},
                 {true, u"uno\r\ndue\r\ntre\r\nquattro"_s, u"3sc"_s},
                 {true, u'x' + wide, u"3sc"_s},
                 {true, sentence.repeated(500), u"3sc"_s}}) {
            const QRectF box = wrapped ? QRectF(300, 300, 2535, 480) : QRectF(150, 150, 1150, 255);
            Element element = textBox(u"t"_s, 0, box, verdana(8.25), text);
            element.wordWrap = wrapped;
            const FittedText fitted(element);
            const QStringList lines = fitted.lines();
            QCOMPARE(QString::number(lines.size()) + (fitted.widthScale() < 1 ? u"n"_s : QString()) +
                         (fitted.sizeScale() < 1 ? u"s"_s : QString()) +
                         (fitted.isCut() ? u"c"_s : QString()),
                     done);
            QVERIFY(fitted.widthScale() >= 0.85 && fitted.sizeScale() >= 0.6);
            const QRectF bounds = fitted.bounds(); // whole lines only, inside the box
            QVERIFY2(bounds.isEmpty() || box.adjusted(-1, -1, 2, 1).contains(bounds), qPrintable(text));
            QCOMPARE(fitted.isCut(), lines.last().endsWith(u'…'));
            QVERIFY(fitted.isCut() || lines.join(u' ').simplified() == text.simplified());
        }
        // Half of a wide character is a narrower box, which may find room where the whole one does not.
        for (int width = 300; width < 900; width += 3) {
            const Element element =
                textBox(u"t"_s, 0, QRectF(0, 0, width, 255), verdana(8.25), wide.left(40));
            QVERIFY2(FittedText(element).lines().first().isValidUtf16(), "cut within a character");
        }
    }

    void picturesKeepToTheirBox() {
        const QString file = program().folder() + u"/images/q/001.jpg"_s;
        Surface surface;
        Element& shown = surface.add(pictureBox(u"figura"_s, 0, {300, 600, 2280, 1995}));
        surface.load(shown, file);
        for (const int ratio : {1, 4}) {
            const QImage page = raster(surface, ratio);
            // 96 dots to the inch for each device pixel of a logical one: 20 cm wide.
            QCOMPARE(page.size(), QSize(756, 1059) * ratio);
            const QRect box(20 * ratio, 40 * ratio, 152 * ratio, 133 * ratio);
            const auto red = [&](const QPoint& at) { return alike(page.pixelColor(at), Qt::red); };
            QVERIFY(red(box.topLeft()) && red(box.bottomRight()));
            QVERIFY(!red(box.topLeft() - QPoint(1, 0)) && !red(box.bottomRight() + QPoint(0, 1)));
        }
        // A file put in its place is noticed, and a bad one changes nothing.
        givePicture(program(), u"q/001.jpg"_s, Qt::blue, {44, 90});
        surface.load(shown, file);
        writeFile(file, "non sono un'immagine");
        QCOMPARE(errorOf([&] { surface.load(shown, file); }), pictures::PictureFile::badPicture);
        QVERIFY(alike(shown.picture.stretchedTo({1, 1}).pixelColor(0, 0), Qt::blue));
    }

    void warnings() {
        QCOMPARE(errorOf([] { return avvertenzeSurface(); }), int(runtime::FileNotFound));
        for (int i = 0; i < 5; ++i)
            givePicture(program(), u"avvertenze/posa%1.JPG"_s.arg(i), Qt::white);
        const Surface surface = avvertenzeSurface();
        // h is 15876: info at h - 570, the logos at h - 930 and h - 695, the warnings 1.5 heights from the
        // foot.
        for (const auto& row : {u"avvertenze 1065 10858.5"_s, u"info 8079.75 15306"_s,
                                u"LogoZentara 9079.75 14946"_s, u"logoQD 610.3 15181"_s}) {
            const Element& e = surface.element(row.section(u' ', 0, 0));
            QCOMPARE(u"%1 %2 %3"_s.arg(e.name).arg(e.left, 0, 'g', 7).arg(e.top, 0, 'g', 7), row);
        }
        QVERIFY(!surface.element(u"info"_s).visible);
        QCOMPARE(illFitting(surface, 0.85, 1), QStringList());
        QByteArray all;
        for (int i = 0; i < 5; ++i) {
            const QString frame = u"Shape%1"_s.arg(QChar(u"12453"[i]));
            const Element& words = surface.element(u"Label1"_s, i);
            QVERIFY2(
                surface.element(frame).rect().adjusted(30, 30, -30, -30).contains(FittedText(words).bounds()),
                qPrintable(frame));
            all += words.text.toUtf8() + '\n';
        }
        // A digest over every word, oddities included, taken from the sheet in use.
        all += surface.element(u"avvertenze"_s).text.toUtf8();
        QCOMPARE(QCryptographicHash::hash(all, QCryptographicHash::Sha256).toHex(),
                 QByteArray("42e987c01810a049d495a14579189c4b5efba2aed9ca78ab8cba3626c80c78dd"));
    }
};

QUIVERDECK_TEST(TestSurface)
#include "test_surface.moc"
