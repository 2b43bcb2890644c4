// The warning sheet: its words, where they stand, and that all of them can be read.

#include "SheetTest.h"

#include "printing/SuperficieAvvertenze.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;
using namespace sheet;

class TestAvvertenze : public SheetTest {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        SheetTest::init();
        for (int i = 0; i < 5; ++i)
            givePicture(program(), u"avvertenze/posa%1.JPG"_s.arg(i), Qt::white);
    }

    void places() {
        const Surface surface = avvertenzeSurface();
        // h is 15876: info at h - 570, the logos at h - 930 and h - 695, the warnings 1.5 heights from the
        // foot.
        for (const auto& row : {u"avvertenze 1065 10858.5"_s, u"info 8079.75 15306"_s,
                                u"LogoZentara 9079.75 14946"_s, u"logoQD 610.3 15181"_s}) {
            const Element& e = surface.element(row.section(u' ', 0, 0));
            QCOMPARE(u"%1 %2 %3"_s.arg(e.name).arg(e.left, 0, 'g', 7).arg(e.top, 0, 'g', 7), row);
        }
        // A digest over every word, oddities included, taken from the sheet in use.
        QVERIFY(!surface.element(u"info"_s).visible);
        QByteArray all;
        for (int i = 0; i < 5; ++i)
            all += surface.element(u"Label1"_s, i).text.toUtf8() + '\n';
        all += surface.element(u"avvertenze"_s).text.toUtf8();
        QCOMPARE(QCryptographicHash::hash(all, QCryptographicHash::Sha256).toHex(),
                 QByteArray("42e987c01810a049d495a14579189c4b5efba2aed9ca78ab8cba3626c80c78dd"));
        QVERIFY(QFile::remove(program().folder() + u"/images/avvertenze/posa3.JPG"_s));
        QCOMPARE(errorOf([] { return avvertenzeSurface(); }), int(runtime::FileNotFound));
    }

    void everyTextFits() {
        const Surface surface = avvertenzeSurface();
        QCOMPARE(illFitting(surface, 0.85, 1), QStringList());
        int i = 0;
        for (const auto& name : {u"Shape1"_s, u"Shape2"_s, u"Shape4"_s, u"Shape5"_s, u"Shape3"_s}) {
            const QRectF words = FittedText(surface.element(u"Label1"_s, i++)).bounds();
            QVERIFY2(surface.element(name).rect().adjusted(30, 30, -30, -30).contains(words),
                     qPrintable(name));
        }
    }
};

QUIVERDECK_TEST(TestAvvertenze)
#include "test_avvertenze.moc"
