#include "cards/mdiScheda.h"
#include "desktop/Tool_BarProg.h"
#include "figures/GestoreListaIMG.h"
#include "figures/SchedaPreviewFigura.h"
#include "figures/SchedaSelezioneFIGURE.h"
#include "figures/TreeViewHelper.h"
#include "platform/toolkit/ImageTree.h"
#include "support/WindowTest.h"

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
        for (const QString& chiave : immagini().nodeKeys())
            testi += immagini().nodeText(chiave);
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
        for (; *uno != nullptr; ++uno)
            if (albero.keyAt(albero.visualItemRect(*uno).center()) == chiave)
                return albero.visualItemRect(*uno);
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
            if (testi.isEmpty() || testi.last() != testo)
                testi.append(testo);
        }
        return false;
    }
    QStringList testi;
    QString titolo;
};

} // namespace

class TestPalette : public WindowTest {
    Q_OBJECT

    static Palette apri() {
        mdiScheda::comune().show(); // reads the thumbnails
        SchedaSelezioneFIGURE::comune().show();
        SchedaPreviewFigura::comune().load();
        return {};
    }
    static WindowPage ingrandita() { return WindowPage(SchedaPreviewFigura::comune()); }
    static const toolkit::PictureBox& quadro() { return ingrandita().find<toolkit::PictureBox>(u"Image1"_s); }
    static bool mostra(int id_fig) {
        return alike(quadro().image().pixelColor(3, 3), colourOfFigure(id_fig));
    }

private Q_SLOTS:
    void apertura() {
        const Palette palette = apri();
        QCOMPARE(palette.window().windowTitle(), u"Selezione Esercizi"_s);
        QVERIFY(palette.isVisible(u"BodyMap1"_s));
        QVERIFY(!palette.isVisible(u"twFolder"_s));
        QCOMPARE(palette.elenco(), u"[2]"_s); // the chest's
        QCOMPARE(palette.immagini().selectedKey(), palette.immagini().nodeKey(1));
        QStringList gruppi;
        for (const QString& chiave : palette.cartelle().nodeKeys())
            gruppi += chiave + u'=' + palette.cartelle().nodeText(chiave);
        QCOMPARE(gruppi, QStringList({u"root=Elenco Completo"_s, u"ADD=Addominali"_s, u"QUA=Cosce"_s,
                                      u"GLU=Glutei"_s, u"PET=Pettorali"_s, u"VUO=Vuoto"_s}));
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
        for (int i = 0; i < aggiunte; ++i)
            addFigure(program(), 10 + i, 10 + i, u"GLU"_s, u"Q/%1.JPG"_s.arg(10 + i));
        Avanzamento avanzamento;
        const Palette palette = apri();
        QCOMPARE(palette.elenco(), u"[2]"_s);
        QTEST(avanzamento.testi.join(u' '), "testi");
        QCOMPARE(avanzamento.titolo, aggiunte > 5 ? u"Caricamento immagini in corso"_s : QString());
        QVERIFY(!Tool_BarProg::esiste());
    }

    void gruppiVicini() {
        // Two neighbours of one name give one node, with the first one's code.
        sql(u"INSERT INTO muscoli VALUES ('QUB','Cosce','')"_s);
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
        addFigure(program(), 10, 12.5, u"ADD"_s, u"Q/010.JPG"_s);
        mdiScheda::comune().ImageList2.add(program().folder() + u"\\images\\Q/010.JPG"_s, QIcon());
        palette.muscolo(u"Add_1"_s);
        QCOMPARE(palette.elenco(), u"[1]"_s);
        palette.clickTab(u"TabStrip1"_s, 1); // the code differs from the node's text: filled
        QCOMPARE(palette.elenco(), u"[1] [1.5] [2] [12.5]"_s);
        palette.gruppo(u"GLU"_s);
        sql(u"DELETE FROM figure_muscoli WHERE id_muscolo = 'GLU'"_s);
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
        addFigure(program(), 10, 20, u"GLU"_s, u"Q/010.JPG"_s);
        addFigure(program(), 11, 21, u"GLU"_s, u"Q/010.JPG"_s); // the same file
        const Palette palette = apri();
        palette.muscolo(u"GLU_0"_s);
        QCOMPARE(palette.elenco(), u"[1.5] [20]"_s);
        QCOMPARE(palette.immagini().nodeTag(palette.immagini().nodeKey(2)), u"10"_s);
        QVERIFY(TreeViewHelper::esisteChiave(palette.immagini(), palette.immagini().nodeKey(1)));
        QVERIFY(!TreeViewHelper::esisteChiave(palette.immagini(), palette.immagini().nodeKey(1).toLower()));
    }

    void numeri() {
        sql(u"INSERT INTO muscoli VALUES ('TRI','Tricipiti','')");
        addFigure(program(), 10, 0.1, u"TRI"_s, u"Q/010.JPG"_s); // not exact in 32 bits
        addFigure(program(), 11, 12.5, u"TRI"_s, u"Q/011.JPG"_s);
        addFigure(program(), 12, 1234.75, u"TRI"_s, u"Q/012.JPG"_s);
        const Palette palette = apri();
        palette.muscolo(u"TRI_1"_s);
        QCOMPARE(palette.elenco(), u"[0.1] [12.5] [1234.75]"_s);
    }

    void senzaFiltro() {
        const Palette palette = apri();
        GestoreListaIMG gestore;
        gestore.tw = &palette.immagini();
        boxes().expect(Icon::Critical, u"Selezionare un gruppo muscolare!"_s);
        gestore.aggiorna();
        QCOMPARE(palette.elenco(), u"[2]"_s); // what was there stays
    }

    void trascinamento() {
        const Palette palette = apri();
        palette.muscolo(u"QUA_1"_s);
        QCOMPARE(palette.elenco(), u"[1] [2]"_s);
        QCOMPARE(palette.trascinaDa(palette.posto(2).center()), u"1"_s); // the key, not the number
        QCOMPARE(palette.trascinaDa(palette.posto(1).center()), u"3"_s);

        // From beside the nodes there is nothing to carry.
        palette.muscolo(u"GLU_0"_s);
        boxes().expect(Icon::None, runtime::standardDescription(runtime::ObjectNotSet));
        QCOMPARE(palette.trascinaDa(QPoint(20, palette.immagini().viewport()->height() - 3)), QString());
    }

    void chiusuraRifiutata() {
        const Palette palette = apri();
        palette.muscolo(u"GLU_0"_s);
        sql(u"DELETE FROM figure_muscoli"_s);
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
        palette.muscolo(u"QUA_1"_s);
        palette.figura(2);
        QVERIFY(!SchedaPreviewFigura::comune().isVisible()); // a click does not open it
        palette.press(u"cmdZoom"_s);
        QVERIFY(SchedaPreviewFigura::comune().isVisible());
        QVERIFY(mostra(1));
        palette.figura(1);
        QVERIFY(mostra(3));
        palette.press(u"cmdZoom"_s); // brings it to the front again
        QCOMPARE(mdiScheda::comune().area()->activeSubWindow()->widget(), &SchedaPreviewFigura::comune());
        ingrandita().press(u"cmdClose"_s);
        QVERIFY(!SchedaPreviewFigura::comune().isVisible());
        palette.figura(2);
        QVERIFY(mostra(3)); // hidden, it keeps its picture
        palette.clickTab(u"TabStrip1"_s, 1);
        palette.gruppo(u"VUO"_s);
        palette.press(u"cmdZoom"_s); // nothing selected
        QVERIFY(!SchedaPreviewFigura::comune().isVisible());
    }

    void anteprima() {
        apri();
        SchedaPreviewFigura& form = SchedaPreviewFigura::comune();
        form.show();
        QVERIFY(quadro().isEmpty()); // the text below is seen
        form.LoadImage(program().folder() + u"\\images\\Q\\002.JPG"_s);
        QVERIFY(mostra(2));
        const auto misure = [&form] { return QSizeF(form.outerWidth(), form.outerHeight()); };
        QCOMPARE(misure(), QSizeF(5850, 6150));
        ingrandita().press(u"ZoomPiu"_s);
        QCOMPARE(misure(), QSizeF(7020, 7380));
        QCOMPARE(quadro().width(), 5775.0); // the window grows, the picture does not
        form.LoadImage(program().folder() + u"\\images\\Q\\001.JPG"_s);
        QCOMPARE(misure(), QSizeF(7020, 7380));
        ingrandita().press(u"ZoomMeno"_s);
        QVERIFY(qAbs(form.outerWidth() - 5850) <= 15 && qAbs(form.outerHeight() - 6150) <= 15);
        form.LoadImage({});
        QVERIFY(quadro().isEmpty());
        for (const QString& pulsante : {u"ZoomPiu"_s, u"ZoomMeno"_s})
            for (int i = 0; i < 200; ++i)
                ingrandita().find<QAbstractButton>(pulsante).click(); // up to where it ends, without an error
        QCOMPARE(errorOf([&form] { return form.LoadImage(u"\\images\\manca.JPG"_s), 0; }),
                 int(runtime::FileNotFound));
    }
};

QUIVERDECK_TEST(TestPalette)
#include "test_palette.moc"
