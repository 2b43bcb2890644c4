#include "cards/mdiScheda.h"
#include "figures/BodyMap.h"
#include "figures/SchedaPreviewFigura.h"
#include "figures/SchedaSelezioneFIGURE.h"
#include "platform/toolkit/Twips.h"
#include "support/WindowTest.h"

#include <QMimeData>

using namespace Qt::StringLiterals;

class TestPalette : public WindowTest {
    Q_OBJECT

    static WindowPage palette() { return WindowPage(SchedaSelezioneFIGURE::comune()); }
    static toolkit::ImageTree& immagini() { return palette().find<toolkit::ImageTree>(u"twImage"_s); }
    static toolkit::ImageTree& cartelle() { return palette().find<toolkit::ImageTree>(u"twFolder"_s); }
    static SchedaPreviewFigura& anteprima_() { return SchedaPreviewFigura::comune(); }
    static void apri() {
        mdiScheda::comune().show(); // reads the thumbnails
        SchedaSelezioneFIGURE::comune().show();
        anteprima_().load();
    }
    /// The middle of the node that bears that text.
    static QPoint posto(toolkit::ImageTree& albero, const QString& testo) {
        auto* nodo = albero.findItems(testo, Qt::MatchExactly | Qt::MatchRecursive).first();
        albero.scrollToItem(nodo);
        return albero.visualItemRect(nodo).center();
    }
    static void clicca(const QString& figura) {
        QTest::mouseClick(immagini().viewport(), Qt::LeftButton, {}, posto(immagini(), figura));
    }
    /// The captions of the thumbnails, in order.
    static QString elenco() {
        QStringList testi;
        for (const QString& chiave : immagini().nodeKeys())
            testi += immagini().nodeText(chiave);
        return testi.join(u' ');
    }
    /// Chooses a muscle group on the map, or in the tree on the other tab.
    static QString muscolo(const QString& area) {
        palette().press(area);
        return elenco();
    }
    static QString gruppo(const QString& nome) {
        QTest::mouseClick(cartelle().viewport(), Qt::LeftButton, {}, posto(cartelle(), nome));
        return elenco();
    }
    static QString scheda(int numero) {
        palette().clickTab(u"TabStrip1"_s, numero);
        return elenco();
    }
    /// Presses the button on a point of the thumbnails; what a drag from there would carry.
    static QString trascinaDa(const QPoint& punto) {
        QTest::mousePress(immagini().viewport(), Qt::LeftButton, {}, punto);
        const std::unique_ptr<QMimeData> dati(immagini().dragData());
        QTest::mouseRelease(immagini().viewport(), Qt::LeftButton, {}, punto);
        return dati ? dati->text() : QString();
    }
    static bool mostra(int id_fig) {
        const auto& quadro = WindowPage(anteprima_()).find<toolkit::PictureBox>(u"Image1"_s);
        return alike(quadro.image().pixelColor(3, 3), colourOfFigure(id_fig));
    }

private Q_SLOTS:
    void mappa() {
        apri();
        auto& mappa = palette().find<BodyMap>(u"BodyMap1"_s);
        QString codici;
        connect(&mappa, &BodyMap::Change, this, [&](const QString& codice) { codici += codice + u' '; });
        // DEL, coded otherwise; PET over DEL, DOR over TRA, ICI over POL, told twice; one beside all.
        for (const QPoint& twips : {QPoint(330, 750), QPoint(2520, 637), QPoint(1335, 690),
                                    QPoint(1200, 2137), QPoint(1200, 2137), QPoint(30, 30)}) {
            QWidget* sotto = mappa.childAt(twips / toolkit::twipsPerPixel);
            QTest::mouseClick(sotto == nullptr ? &mappa : sotto, Qt::LeftButton);
        }
        QCOMPARE(codici, u"DAL PET DOR ICI ICI "_s);
        QVERIFY(alike(mappa.grab().toImage().pixelColor(60, 10), colourOfMap(u"ICI"_s)));
    }

    void figureInOrdine() {
        // 0.1 is not exact in 32 bits; the last figure has the file of the one before.
        constexpr double numeri[] = {0.1, 12.5, 1234.75, 13, 14, 15};
        for (int i = 0; i < 6; ++i)
            addFigure(program(), 10 + i, numeri[i], u"GLU"_s, u"Q/%1.JPG"_s.arg(std::min(10 + i, 14)));
        apri();
        QCOMPARE(elenco(), u"[2]"_s); // the chest's
        QCOMPARE(muscolo(u"GLU_0"_s), u"[0.1] [1.5] [12.5] [13] [14] [1234.75]"_s);
        QCOMPARE(immagini().nodeTag(immagini().nodeKey(5)), u"14"_s);
    }

    void filtriEUltimaSelezione() {
        sql(u"INSERT INTO muscoli VALUES ('QUB','Cosce','')"_s); // of two neighbours of one name one is shown
        apri();
        QVERIFY(cartelle().contains(u"QUA"_s) != cartelle().contains(u"QUB"_s));
        QCOMPARE(scheda(1), u"[1] [1.5] [2]"_s);
        QTest::keyClick(&cartelle(), Qt::Key_Down); // Addominali
        QCOMPARE(elenco(), u"[1]"_s);
        QCOMPARE(gruppo(u"Vuoto"_s), QString());
        QCOMPARE(gruppo(u"Elenco Completo"_s), u"[1] [1.5] [2]"_s);
        scheda(2);
        QCOMPARE(muscolo(u"Add_1"_s), u"[1]"_s);
        // The filter in force is not read anew, from map or tree.
        addFigure(program(), 10, 12.5, u"ADD"_s, u"Q/010.JPG"_s);
        mdiScheda::comune().ImageList2.add(program().folder() + u"\\images\\Q/010.JPG"_s, QIcon());
        QCOMPARE(muscolo(u"Add_1"_s), u"[1]"_s);
        QCOMPARE(scheda(1), u"[1] [1.5] [2] [12.5]"_s); // the code differs from the node's text: filled
        QCOMPARE(gruppo(u"Glutei"_s), u"[1.5]"_s);
        sql(u"DELETE FROM figure_muscoli WHERE id_muscolo = 'GLU'"_s);
        QCOMPARE(gruppo(u"Glutei"_s), u"[1.5]"_s);
        QCOMPARE(scheda(2), QString()); // empty until a click on the map
        QCOMPARE(muscolo(u"Add_1"_s), u"[1] [12.5]"_s);
        // Back on the tree the group chosen before is listed again, although it was chosen last there.
        QCOMPARE(scheda(1) + cartelle().selectedKey(), u"GLU"_s);
        // A refused close forgets the choice in force.
        QCOMPARE(gruppo(u"Cosce"_s), u"[1] [2]"_s);
        sql(u"DELETE FROM figure_muscoli"_s);
        palette().window().close();
        anteprima_().close();
        QVERIFY(palette().window().isVisible() && SchedaPreviewFigura::esiste());
        QCOMPARE(gruppo(u"Cosce"_s), QString());
    }

    void zoomImmagine() {
        apri();
        QCOMPARE(muscolo(u"QUA_1"_s), u"[1] [2]"_s);
        QCOMPARE(trascinaDa(posto(immagini(), u"[2]"_s)), u"1"_s); // the key, not the number
        boxes().expect(Icon::None, runtime::standardDescription(runtime::ObjectNotSet));
        QCOMPARE(trascinaDa(QPoint(20, immagini().viewport()->height() - 3)), QString()); // beside the nodes
        clicca(u"[2]"_s);
        QVERIFY(!anteprima_().isVisible()); // a click does not open it
        palette().press(u"cmdZoom"_s);
        QVERIFY(anteprima_().isVisible() && mostra(1));
        clicca(u"[1]"_s);
        QVERIFY(mostra(3));
        WindowPage(anteprima_()).press(u"cmdClose"_s);
        clicca(u"[2]"_s);
        QVERIFY(!anteprima_().isVisible() && mostra(3)); // hidden, it keeps its picture
        scheda(1);
        gruppo(u"Vuoto"_s);
        palette().press(u"cmdZoom"_s); // nothing selected
        QVERIFY(!anteprima_().isVisible());
    }

    void anteprima() {
        apri();
        anteprima_().show();
        const WindowPage page(anteprima_());
        const auto misure = [] { return QSizeF(anteprima_().outerWidth(), anteprima_().outerHeight()); };
        page.press(u"ZoomPiu"_s);
        anteprima_().LoadImage(program().folder() + u"\\images\\Q\\001.JPG"_s);
        QCOMPARE(misure(), QSizeF(7020, 7380));
        page.press(u"ZoomMeno"_s);
        QCOMPARE(misure(), QSizeF(5850, 6150));
        QCOMPARE(page.find<toolkit::PictureBox>(u"Image1"_s).width(), 5775); // stays as it is
        for (int i = 0; i < 400; ++i) // up to where it ends, without an error
            page.find<QAbstractButton>(i < 200 ? u"ZoomPiu"_s : u"ZoomMeno"_s).click();
    }
};

QUIVERDECK_TEST(TestPalette)
#include "test_palette.moc"
