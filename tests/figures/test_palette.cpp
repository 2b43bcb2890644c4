#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"
#include "desktop/Tool_BarProg.h"
#include "figures/GestoreListaIMG.h"
#include "figures/SchedaPreviewFigura.h"
#include "figures/SchedaSelezioneFIGURE.h"
#include "figures/TreeViewHelper.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/ImageTree.h"
#include "platform/toolkit/PictureBox.h"
#include "support/ProgrammaConFigure.h"
#include "support/ToolkitTest.h"
#include "support/WindowChecks.h"
#include "support/WindowPage.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// The palette as its user sees it.
class Palette : public WindowPage {
public:
    Palette() : WindowPage(SchedaSelezioneFIGURE::comune()) {}

    toolkit::ImageTree& immagini() const { return find<toolkit::ImageTree>(u"twImage"_s); }
    toolkit::ImageTree& cartelle() const { return find<toolkit::ImageTree>(u"twFolder"_s); }
    /// The captions of the thumbnails, in order.
    QString elenco() const {
        QStringList testi;
        for (const QString& chiave : immagini().nodeKeys()) {
            testi += immagini().nodeText(chiave);
        }
        return testi.join(u' ');
    }
    void gruppo(const QString& chiave) const { clicca(cartelle(), chiave); }
    void figura(int posizione) const { clicca(immagini(), immagini().nodeKey(posizione)); }
    void muscolo(const QString& area) const { press(area); }
    /// Presses the button on a point of the thumbnails; what a drag from there would carry, nothing for none.
    QString trascinaDa(const QPoint& punto) const {
        QTest::mousePress(immagini().viewport(), Qt::LeftButton, {}, punto);
        const std::unique_ptr<QMimeData> dati(immagini().dragData());
        QTest::mouseRelease(immagini().viewport(), Qt::LeftButton, {}, punto);
        return dati ? dati->text() : QString();
    }
    QRect posto(int posizione) const { return posto(immagini(), immagini().nodeKey(posizione)); }

private:
    static QRect posto(const toolkit::ImageTree& albero, const QString& chiave) {
        QTreeWidgetItemIterator uno(const_cast<toolkit::ImageTree*>(&albero));
        for (; *uno != nullptr; ++uno) {
            if (albero.keyAt(albero.visualItemRect(*uno).center()) == chiave) {
                return albero.visualItemRect(*uno);
            }
        }
        return {};
    }
    static void clicca(toolkit::ImageTree& albero, const QString& chiave) {
        albero.ensureVisible(chiave);
        QTest::mouseClick(albero.viewport(), Qt::LeftButton, {}, posto(albero, chiave).center());
    }
};

/// What the progress window tells, each time it paints.
class Avanzamento : public QObject {
public:
    Avanzamento() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* visto, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && visto->objectName() == u"Status"_s) {
            const QString testo = qobject_cast<QLabel*>(visto)->text();
            titolo = qobject_cast<QLabel*>(visto)->window()->windowTitle();
            if (testi.isEmpty() || testi.last() != testo) {
                testi.append(testo);
            }
        }
        return false;
    }
    QStringList testi;
    QString titolo;
};

class Anteprima : public WindowPage {
public:
    Anteprima() : WindowPage(SchedaPreviewFigura::comune()) {}
    const toolkit::PictureBox& immagine() const { return find<toolkit::PictureBox>(u"Image1"_s); }
    bool mostra(int id_fig) const {
        const QColor vista = immagine().image().pixelColor(3, 3);
        const QColor attesa = ProgrammaConFigure::coloreFigura(id_fig);
        return qAbs(vista.red() - attesa.red()) + qAbs(vista.green() - attesa.green()) +
                   qAbs(vista.blue() - attesa.blue()) <
               24;
    }
    toolkit::Form& form() const { return SchedaPreviewFigura::comune(); }
};

} // namespace

class TestPalette : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<ProgrammaConFigure> programma_;

    static Palette apri() {
        mdiScheda::comune().show(); // reads the thumbnails
        SchedaSelezioneFIGURE::comune().show();
        SchedaPreviewFigura::comune().load();
        return {};
    }

private Q_SLOTS:
    void init() { programma_ = std::make_unique<ProgrammaConFigure>(); }
    void cleanup() {
        variabiliGlobali::inChiusura = true;
        mdiScheda::comune().puoiChiudere = true;
        QVERIFY(mdiScheda::comune().unload());
        toolkit::Application::purge();
        variabiliGlobali::inChiusura = false;
        QVERIFY(programma_->boxes.satisfied());
        programma_.reset();
    }

    void apertura() {
        const Palette palette = apri();
        QCOMPARE(palette.window().windowTitle(), u"Selezione Esercizi"_s);
        QVERIFY(palette.isVisible(u"BodyMap1"_s));
        QVERIFY(!palette.isVisible(u"twFolder"_s));
        QCOMPARE(palette.elenco(), u"[2]"_s); // the chest's
        QCOMPARE(palette.immagini().selectedKey(), palette.immagini().nodeKey(1));
        QStringList gruppi;
        for (const QString& chiave : palette.cartelle().nodeKeys()) {
            gruppi += chiave + u'=' + palette.cartelle().nodeText(chiave);
        }
        QCOMPARE(gruppi, QStringList({u"root=Elenco Completo"_s, u"ADD=Addominali"_s, u"QUA=Cosce"_s,
                                      u"GLU=Glutei"_s, u"PET=Pettorali"_s, u"VUO=Vuoto"_s}));
        QCOMPARE(cutTexts(palette.window()), QStringList());
        for (const QWidget* uno : palette.window().findChildren<QWidget*>()) {
            if (uno->focusPolicy() != Qt::NoFocus && uno->isVisible() &&
                !uno->objectName().startsWith(u"qt_"_s)) {
                QVERIFY2(!uno->accessibleName().isEmpty() || uno->inherits("QAbstractButton"),
                         qPrintable(uno->objectName()));
            }
        }
    }

    void avanzamento_data() {
        QTest::addColumn<int>("aggiunte");
        QTest::addColumn<QString>("testi");
        QTest::newRow("ten of the machine") << 5 << QString();
        // Counted over the whole machine, also where one figure alone matches.
        QTest::newRow("eleven") << 6 << u"0% 9% 18% 27% 36% 45% 54% 63% 72% 81% 90% 100%"_s;
    }
    void avanzamento() {
        QFETCH(int, aggiunte);
        for (int i = 0; i < aggiunte; ++i) {
            programma_->figura(10 + i, 10 + i, u"GLU"_s, u"Q/%1.JPG"_s.arg(10 + i));
        }
        Avanzamento avanzamento;
        const Palette palette = apri();
        QCOMPARE(palette.elenco(), u"[2]"_s);
        QTEST(avanzamento.testi.join(u' '), "testi");
        QCOMPARE(avanzamento.titolo, aggiunte > 5 ? u"Caricamento immagini in corso"_s : QString());
        QVERIFY(!Tool_BarProg::esiste());
    }

    void gruppiVicini() {
        // Two neighbours of one name give one node, with the first one's code.
        programma_->program.sql(u"INSERT INTO muscoli VALUES ('QUB','Cosce','')"_s);
        const Palette palette = apri();
        QVERIFY(palette.cartelle().contains(u"QUA"_s) != palette.cartelle().contains(u"QUB"_s));
    }

    void filtri() {
        const Palette palette = apri();
        palette.clickTab(u"TabStrip1"_s, 1);
        QVERIFY(palette.isVisible(u"twFolder"_s));
        QVERIFY(!palette.isVisible(u"BodyMap1"_s));
        QCOMPARE(palette.elenco(), u"[1] [1.5] [2]"_s);
        QCOMPARE(palette.window().focusWidget(), &palette.cartelle());
        palette.gruppo(u"QUA"_s);
        QCOMPARE(palette.elenco(), u"[1] [2]"_s);
        palette.gruppo(u"GLU"_s);
        QCOMPARE(palette.elenco(), u"[1.5]"_s);
        palette.gruppo(u"VUO"_s);
        QCOMPARE(palette.elenco(), QString());
        QVERIFY(!palette.immagini().hasSelection());
        palette.gruppo(u"root"_s);
        QCOMPARE(palette.elenco(), u"[1] [1.5] [2]"_s);
        QTest::keyClick(&palette.cartelle(), Qt::Key_Down); // Addominali
        QCOMPARE(palette.elenco(), u"[1]"_s);
    }

    void ultimaSelezione() {
        const Palette palette = apri();
        palette.muscolo(u"Add_1"_s);
        QCOMPARE(palette.elenco(), u"[1]"_s);
        // The filter in force is not read anew, from map or tree.
        programma_->figura(10, 12.5, u"ADD"_s, u"Q/010.JPG"_s);
        mdiScheda::comune().ImageList2.add(programma_->program.folder() + u"\\images\\Q/010.JPG"_s, QIcon());
        palette.muscolo(u"Add_1"_s);
        QCOMPARE(palette.elenco(), u"[1]"_s);
        palette.clickTab(u"TabStrip1"_s, 1); // the code differs from the node's text: filled
        QCOMPARE(palette.elenco(), u"[1] [1.5] [2] [12.5]"_s);
        palette.gruppo(u"GLU"_s);
        programma_->program.sql(u"DELETE FROM figure_muscoli WHERE id_muscolo = 'GLU'"_s);
        palette.gruppo(u"GLU"_s);
        QCOMPARE(palette.elenco(), u"[1.5]"_s);
        palette.clickTab(u"TabStrip1"_s, 2); // empty until a click on the map
        QCOMPARE(palette.elenco(), QString());
        palette.muscolo(u"Add_1"_s);
        QCOMPARE(palette.elenco(), u"[1] [12.5]"_s);
        // Back on the tree the group chosen before is listed again, although it was chosen last there.
        palette.clickTab(u"TabStrip1"_s, 1);
        QCOMPARE(palette.elenco(), QString());
        QCOMPARE(palette.cartelle().selectedKey(), u"GLU"_s);
    }

    void doppioni() {
        programma_->figura(10, 20, u"GLU"_s, u"Q/010.JPG"_s);
        programma_->figura(11, 21, u"GLU"_s, u"Q/010.JPG"_s); // the same file
        const Palette palette = apri();
        palette.muscolo(u"GLU_0"_s);
        QCOMPARE(palette.elenco(), u"[1.5] [20]"_s);
        QCOMPARE(palette.immagini().nodeTag(palette.immagini().nodeKey(2)), u"10"_s);
        QVERIFY(TreeViewHelper::esisteChiave(palette.immagini(), palette.immagini().nodeKey(1)));
        QVERIFY(!TreeViewHelper::esisteChiave(palette.immagini(), palette.immagini().nodeKey(1).toLower()));
    }

    void numeri_data() {
        QTest::addColumn<double>("numero");
        QTest::addColumn<QString>("testo");
        QTest::newRow("whole") << 104.0 << u"[104]"_s;
        QTest::newRow("half") << 12.5 << u"[12.5]"_s;
        QTest::newRow("tenth, not exact in 32 bits") << 0.1 << u"[0.1]"_s;
        QTest::newRow("large") << 1234.75 << u"[1234.75]"_s;
    }
    void numeri() {
        QFETCH(const double, numero);
        programma_->figura(10, numero, u"TRI"_s, u"Q/010.JPG"_s);
        programma_->program.sql(u"INSERT INTO muscoli VALUES ('TRI','Tricipiti','')"_s);
        const Palette palette = apri();
        palette.muscolo(u"TRI_1"_s);
        QTEST(palette.elenco(), "testo");
    }

    void senzaFiltro() {
        const Palette palette = apri();
        GestoreListaIMG gestore;
        gestore.tw = &palette.immagini();
        programma_->boxes.expect(host::Icon::Critical, u"Selezionare un gruppo muscolare!"_s);
        gestore.aggiorna();
        QCOMPARE(palette.elenco(), u"[2]"_s); // what was there stays
    }

    void trascinamento() {
        const Palette palette = apri();
        palette.muscolo(u"QUA_1"_s);
        QCOMPARE(palette.elenco(), u"[1] [2]"_s);
        QCOMPARE(palette.trascinaDa(palette.posto(2).center()), u"1"_s); // the key, not the number
        QCOMPARE(palette.trascinaDa(palette.posto(1).center()), u"3"_s);

        toolkit::PictureBox figura(u"bersaglio"_s, &mdiScheda::comune());
        figura.resize(100, 100);
        figura.setDropTarget(true);
        figura.QWidget::show();
        const QSignalSpy cadute(&figura, &toolkit::PictureBox::dropped);
        QVERIFY(WindowPage(mdiScheda::comune())
                    .drop(u"bersaglio"_s, palette.trascinaDa(palette.posto(1).center())));
        QCOMPARE(cadute.count(), 1);
        QCOMPARE(cadute.first().first().toString(), u"3"_s);

        // From beside the nodes there is nothing to carry.
        palette.muscolo(u"GLU_0"_s);
        programma_->boxes.expect(host::Icon::None, runtime::standardDescription(runtime::ObjectNotSet));
        QCOMPARE(palette.trascinaDa(QPoint(20, palette.immagini().viewport()->height() - 3)), QString());
    }

    void chiusuraRifiutata() {
        const Palette palette = apri();
        palette.muscolo(u"GLU_0"_s);
        programma_->program.sql(u"DELETE FROM figure_muscoli"_s);
        palette.muscolo(u"GLU_0"_s);
        QCOMPARE(palette.elenco(), u"[1.5]"_s);
        palette.window().close();
        SchedaPreviewFigura::comune().close();
        QVERIFY(palette.window().isVisible());
        QVERIFY(SchedaPreviewFigura::esiste());
        palette.muscolo(u"GLU_0"_s); // read anew after the refused close
        QCOMPARE(palette.elenco(), QString());
    }

    void zoomImmagine() {
        const Palette palette = apri();
        const Anteprima anteprima;
        palette.muscolo(u"QUA_1"_s);
        palette.figura(2);
        QVERIFY(!anteprima.window().isVisible()); // a click does not open it
        palette.press(u"cmdZoom"_s);
        QVERIFY(anteprima.window().isVisible());
        QVERIFY(anteprima.mostra(1));
        palette.figura(1);
        QVERIFY(anteprima.mostra(3));
        palette.press(u"cmdZoom"_s); // brings it to the front again
        QCOMPARE(mdiScheda::comune().area()->activeSubWindow()->widget(), &anteprima.window());
        anteprima.press(u"cmdClose"_s);
        QVERIFY(!anteprima.window().isVisible());
        palette.figura(2);
        QVERIFY(anteprima.mostra(3)); // hidden, it keeps its picture
        palette.clickTab(u"TabStrip1"_s, 1);
        palette.gruppo(u"VUO"_s);
        palette.press(u"cmdZoom"_s); // nothing selected
        QVERIFY(!anteprima.window().isVisible());
    }

    void anteprima() {
        apri();
        const Anteprima anteprima;
        anteprima.form().show();
        QVERIFY(anteprima.immagine().isEmpty()); // the text below is seen
        QCOMPARE(cutTexts(anteprima.window()), QStringList());
        SchedaPreviewFigura::comune().LoadImage(programma_->program.folder() + u"\\images\\Q\\002.JPG"_s);
        QVERIFY(anteprima.mostra(2));
        const double larghezza = anteprima.form().outerWidth();
        const double altezza = anteprima.form().outerHeight();
        QCOMPARE(larghezza, 5850.0);
        QCOMPARE(altezza, 6150.0);
        anteprima.press(u"ZoomPiu"_s);
        QCOMPARE(anteprima.form().outerWidth(), 7020.0);
        QCOMPARE(anteprima.form().outerHeight(), 7380.0);
        QCOMPARE(anteprima.immagine().width(), 5775.0); // the window grows, the picture does not
        SchedaPreviewFigura::comune().LoadImage(programma_->program.folder() + u"\\images\\Q\\001.JPG"_s);
        QCOMPARE(anteprima.form().outerWidth(), 7020.0);
        anteprima.press(u"ZoomMeno"_s);
        QVERIFY(qAbs(anteprima.form().outerWidth() - larghezza) <= 15);
        QVERIFY(qAbs(anteprima.form().outerHeight() - altezza) <= 15);
        SchedaPreviewFigura::comune().LoadImage({});
        QVERIFY(anteprima.immagine().isEmpty());
        for (const QString& pulsante : {u"ZoomPiu"_s, u"ZoomMeno"_s}) {
            for (int i = 0; i < 200; ++i) {
                anteprima.find<QAbstractButton>(pulsante).click(); // up to where it ends, without an error
            }
        }
        try {
            SchedaPreviewFigura::comune().LoadImage(u"\\images\\manca.JPG"_s);
            QFAIL("a missing picture was loaded");
        } catch (const runtime::Error& errore) {
            QCOMPARE(errore.number(), int(runtime::FileNotFound));
        }
    }
};

QUIVERDECK_WINDOW_TEST_MAIN(TestPalette)
#include "test_palette.moc"
