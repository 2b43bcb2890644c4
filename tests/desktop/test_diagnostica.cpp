#include "core/Principale.h"
#include "desktop/testClassi.h"
#include "desktop/zTESTDragAndDrop.h"
#include "desktop/zTestTreeViewImage.h"
#include "support/WindowTest.h"

#include <QMimeData>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

class TestDiagnostica : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void counts() {
        sql(u"INSERT INTO utenti (cognome) VALUES ('Rossi'),('Verdi'); DROP TABLE muscoli"_s);
        const QString lines = testClassi::conteggi();
        QVERIFY(lines.startsWith(u"utenti: 2\nschede: 0\n"_s));
        QVERIFY(QRegularExpression(u"\nmuscoli: [^0-9]"_s).match(lines).hasMatch()); // tells why
        QVERIFY(lines.endsWith(u"palestra: 1\nParametri: 1\n"_s));
    }

    void behindTheButton() {
        Principale::comune().show();
        const WindowPage main(Principale::comune());
        QVERIFY(!main.isVisible(u"test"_s));
        QTest::keyClick(&Principale::comune(), Qt::Key_F12, Qt::ControlModifier | Qt::ShiftModifier);
        whenModal([](toolkit::Form& form) {
            const FormPage page(form);
            whenModal([](toolkit::Form& display) {
                QVERIFY(WindowPage(display).text(u"txtDisplay"_s).contains(u"figure: 4\n"_s));
                display.unload();
            });
            page.press(u"cmdConteggi"_s);
            whenModal([](toolkit::Form& compact) {
                const WindowPage shown(compact);
                QVERIFY(!shown.find<toolkit::PictureBox>(u"figura"_s).isEmpty());
                shown.press(u"cmdSucc"_s);
                QCOMPARE(shown.text(u"durata"_s), u"30s"_s);
                compact.unload();
            });
            page.press(u"cmdSchedaCorpo2"_s);
            form.unload();
        });
        main.press(u"test"_s);
    }

    void dragging() {
        zTESTDragAndDrop& form = zTESTDragAndDrop::comune();
        form.show();
        const FormPage page(form);
        auto& tree = page.find<toolkit::ImageTree>(u"twImage"_s);
        QCOMPARE(tree.nodeCount(), 4);
        tree.select(u"2"_s);
        const std::unique_ptr<QMimeData> data(tree.dragData());
        QVERIFY(page.drop(u"figura"_s, data->text()));
        QCOMPARE(page.text(u"lblTesto"_s), u"2"_s);
        QVERIFY(!page.find<toolkit::PictureBox>(u"figura"_s).isEmpty());
    }

    void treeOfPictures() {
        zTestTreeViewImage& form = zTestTreeViewImage::comune();
        form.show();
        const FormPage page(form);
        QCOMPARE(page.find<toolkit::ImageTree>(u"tw"_s).nodeCount(), 1 + 5);
        Q_EMIT page.find<toolkit::ImageTree>(u"tw"_s).nodeClick(u"GLU"_s);
        QCOMPARE(page.text(u"lblChiave"_s), u"GLU"_s);
    }
};

QUIVERDECK_TEST(TestDiagnostica)
#include "test_diagnostica.moc"
