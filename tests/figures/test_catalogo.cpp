#include "figures/Figure.h"
#include "figures/RidimensionatoreImmagini.h"
#include "support/FakeControls.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

namespace {

QStringList described(const Figure::Raccolta& figures) {
    QStringList result;
    for (const auto& one : figures)
        result += u"%1 %2 %3 %4/%5"_s.arg(one->id_fig)
                      .arg(one->ID_MAC)
                      .arg(one->numero)
                      .arg(one->id_muscolo, one->nomeMuscolo);
    return result;
}

} // namespace

class TestCatalogo : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void catalogue() {
        Figure each;
        each.init(true);
        QVERIFY(each.isQDLoaded && each.isGLLoaded);
        QCOMPARE(described(*each.figureQD),
                 QStringList({u"3 QUIVR 1 /"_s, u"2 QUIVR 1.5 /"_s, u"1 QUIVR 2 /"_s}));
        QCOMPARE(described(*each.figureGL), QStringList({u"4 GLIDR 1 /"_s}));
        Figure byMuscle;
        byMuscle.init(false);
        QStringList found = described(*byMuscle.figureQD);
        found.sort(); // equal numbers come in the store's order
        QCOMPARE(found, QStringList({u"1 QUIVR 2 QUA/Cosce"_s, u"2 QUIVR 1.5 GLU/Glutei"_s,
                                     u"3 QUIVR 1 ADD/Addominali"_s, u"3 QUIVR 1 QUA/Cosce"_s}));
        QCOMPARE(byMuscle.figureQD->Item(4)->id_fig, 1);
        QCOMPARE(byMuscle.muscoli->Item(2)->id_muscolo, u"QUA"_s); // by name: Addominali, Cosce, Glutei
        QCOMPARE(byMuscle.muscoli->Item(2)->nomeMuscolo, u"Quadricipite"_s);
        byMuscle.init(false);
        QCOMPARE(byMuscle.figureQD->Count(), 8); // nothing empties it
    }

    void machinesThatAreNotLoaded() {
        sql(u"UPDATE Macchinari SET Caricata=0");
        Figure none;
        none.init(true);
        QCOMPARE(none.figureQD->Count() + none.figureGL->Count(), 0);
        QCOMPARE(none.muscoli->Count(), 3);
        sql(u"DELETE FROM Macchinari WHERE ID_MAC='GLIDR'");
        QCOMPARE(errorOf([&] { none.init(true); }), 13); // the answer is a text
    }

    void oneFigure() {
        figura one;
        one.id_muscolo = u"QUA"_s;
        QVERIFY(one.carica(2));
        QCOMPARE(one.numero, 1.5F);
        QCOMPARE(one.id_muscolo, u"QUA"_s);
        QCOMPARE(one.figura_(), program().folder() + u"\\images\\Q\\002.JPG"_s);
        boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!one.carica(99));
        QCOMPARE(one.id_fig, 2);
    }

    void fitting_data() {
        QTest::addColumn<double>("max");
        QTest::addColumn<QList<double>>("before"); // left, top, width, height
        QTest::addColumn<QList<double>>("after");
        using Box = QList<double>;
        QTest::newRow("wide") << 3000.0 << Box{0, 0, 6000, 3000} << Box{0, 750, 3000, 1500};
        QTest::newRow("fits") << 3000.0 << Box{7, 8, 3000, 3000} << Box{7, 8, 3000, 3000};
        QTest::newRow("small is only centred")
            << 3000.0 << Box{10, 20, 1000, 500} << Box{1010, 1270, 1000, 500};
        QTest::newRow("tall") << 2300.0 << Box{0, 0, 1000, 4600} << Box{900, 0, 500, 2300};
        QTest::newRow("both, whole twips taken off") << 100.0 << Box{0, 0, 401, 201} << Box{0, 25, 100, 50};
    }
    void fitting() {
        QFETCH(double, max);
        QFETCH(QList<double>, before);
        QFETCH(QList<double>, after);
        FakeBox box(before[0], before[1], before[2], before[3]);
        RidimensionatoreImmagini resizer;
        QCOMPARE(errorOf([&] { resizer.ridimensiona(); }), 91);
        resizer.MAX = max;
        resizer.setImage(box);
        for (int call = 1; call <= 2; ++call) { // the second changes nothing
            resizer.ridimensiona();
            QCOMPARE(QList<double>({box.left(), box.top(), box.width(), box.height()}), after);
            QCOMPARE(box.refreshed, call);
        }
        QVERIFY(box.visible);
    }
};

QUIVERDECK_TEST(TestCatalogo)
#include "test_catalogo.moc"
