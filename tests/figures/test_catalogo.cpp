#include "figures/Figure.h"
#include "figures/RidimensionatoreImmagini.h"
#include "support/Errors.h"
#include "support/FakeControls.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"

#include <QTest>

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

class TestCatalogo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
    }
    void cleanup() {
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void catalogue() {
        Figure each;
        each.init(true);
        QVERIFY(each.isQDLoaded && each.isGLLoaded);
        QCOMPARE(described(*each.figureQD),
                 QStringList({u"3 QUIVR 1 /"_s, u"2 QUIVR 1.5 /"_s, u"1 QUIVR 2 /"_s}));
        QCOMPARE(described(*each.figureGL), QStringList({u"4 GLIDR 1 /"_s}));
        QCOMPARE(each.figureQD->Item(3)->figura_(), program_->folder() + u"\\images\\Q\\001.JPG"_s);
        Figure byMuscle;
        byMuscle.init(false);
        QStringList found = described(*byMuscle.figureQD);
        QCOMPARE(found.mid(2), QStringList({u"2 QUIVR 1.5 GLU/Glutei"_s, u"1 QUIVR 2 QUA/Cosce"_s}));
        found = found.mid(0, 2); // equal numbers come in the store's order
        found.sort();
        QCOMPARE(found, QStringList({u"3 QUIVR 1 ADD/Addominali"_s, u"3 QUIVR 1 QUA/Cosce"_s}));
        QCOMPARE(byMuscle.muscoli->Count(), 3);
        QCOMPARE(byMuscle.muscoli->Item(2)->id_muscolo, u"QUA"_s); // by name: Addominali, Cosce, Glutei
        QCOMPARE(byMuscle.muscoli->Item(2)->nomeMuscolo, u"Quadricipite"_s);
        byMuscle.init(false);
        QCOMPARE(byMuscle.figureQD->Count(), 8); // nothing empties it
    }

    void machinesThatAreNotLoaded() {
        program_->sql(u"UPDATE Macchinari SET Caricata=0"_s);
        Figure none;
        none.init(true);
        QCOMPARE(none.figureQD->Count() + none.figureGL->Count(), 0);
        QCOMPARE(none.muscoli->Count(), 3);
        program_->sql(u"DELETE FROM Macchinari WHERE ID_MAC='GLIDR'"_s);
        QCOMPARE(errorOf([&] { return none.init(true), 0; }), 13); // the answer is a text
    }

    void oneFigure() {
        figura one;
        QCOMPARE(one.figura_(), program_->folder() + u"\\"_s);
        one.id_muscolo = u"QUA"_s;
        QVERIFY(one.carica(2));
        QCOMPARE(one.numero, 1.5F);
        QCOMPARE(one.id_muscolo, u"QUA"_s);
        boxes_->expect(host::Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!one.carica(99));
        QCOMPARE(one.id_fig, 2);
        one.figura_(u"altra\\x.JPG"_s);
        QCOMPARE(one.figura_(), program_->folder() + u"\\altra\\x.JPG"_s);
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
        QCOMPARE(errorOf([&] { return resizer.ridimensiona(), 0; }), 91);
        resizer.MAX = max;
        resizer.setImage(box);
        for (int call = 1; call <= 2; ++call) { // the second changes nothing
            resizer.ridimensiona();
            QCOMPARE(QList<double>({box.left(), box.top(), box.width(), box.height()}), after);
            QCOMPARE(box.refreshed, call);
        }
        QVERIFY(box.visible);
    }

private:
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QTEST_GUILESS_MAIN(TestCatalogo)
#include "test_catalogo.moc"
