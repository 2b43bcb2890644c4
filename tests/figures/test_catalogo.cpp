#include "figures/Figure.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

class TestCatalogo : public RecordsTest {
    Q_OBJECT

    static QString described(const Figure::Raccolta& figures) {
        QStringList all;
        for (const auto& one : figures)
            all += u"%1 %2 %3 %4"_s.arg(one->id_fig).arg(one->numero).arg(one->id_muscolo, one->nomeMuscolo);
        return all.join(u", "_s);
    }

private Q_SLOTS:
    void catalogue() {
        Figure each;
        each.init(true);
        QCOMPARE(described(*each.figureQD), u"3 1  , 2 1.5  , 1 2  "_s);
        QCOMPARE(described(*each.figureGL), u"4 1  "_s);
        Figure byMuscle;
        byMuscle.init(false);
        const QString found = described(*byMuscle.figureQD); // equal numbers come in the store's order
        QVERIFY(found.contains(u"3 1 ADD Addominali"_s) &&
                found.endsWith(u", 2 1.5 GLU Glutei, 1 2 QUA Cosce"_s));
        QCOMPARE(byMuscle.muscoli->Item(2)->nomeMuscolo, u"Quadricipite"_s); // by name: Addominali, Cosce
        byMuscle.init(false);
        QCOMPARE(byMuscle.figureQD->Count(), 8); // nothing empties it
        sql(u"UPDATE Macchinari SET Caricata=0");
        Figure none;
        none.init(true);
        QCOMPARE(none.figureQD->Count() + none.figureGL->Count(), 0);
        sql(u"DELETE FROM Macchinari WHERE ID_MAC='GLIDR'");
        QCOMPARE(errorOf([&] { none.init(true); }), 13); // the answer is a text
    }

    void oneFigure() {
        figura one;
        one.id_muscolo = u"QUA"_s;
        QVERIFY(one.carica(2));
        boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!one.carica(99));
        QCOMPARE(one.id_muscolo + u"%1"_s.arg(one.numero), u"QUA1.5"_s);
        QCOMPARE(one.figura_(), program().folder() + u"\\images\\Q\\002.JPG"_s);
    }
};

QUIVERDECK_TEST(TestCatalogo)
#include "test_catalogo.moc"
