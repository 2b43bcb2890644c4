#include "cards/mdiScheda.h"
#include "desktop/Tool_BarProg.h"
#include "figures/BodyMap.h"
#include "figures/SchedaPreviewFigura.h"
#include "figures/SchedaSelezioneFIGURE.h"
#include "platform/toolkit/Twips.h"
#include "support/WindowTest.h"

#include <QLabel>
#include <QMimeData>

using namespace Qt::StringLiterals;

class TestPalette : public WindowTest {
    Q_OBJECT

    QStringList avanzamento_; ///< what the progress window told, each time it painted

    static WindowPage palette() { return WindowPage(SchedaSelezioneFIGURE::comune()); }
    static toolkit::ImageTree& immagini() { return palette().find<toolkit::ImageTree>(u"twImage"_s); }
    static toolkit::ImageTree& cartelle() { return palette().find<toolkit::ImageTree>(u"twFolder"_s); }
    static SchedaPreviewFigura& anteprima_() { return SchedaPreviewFigura::comune(); }
    static void apri() {
        mdiScheda::comune().show(); // reads the thumbnails
        SchedaSelezioneFIGURE::comune().show();
        anteprima_().load();
    }
    static QRect posto(toolkit::ImageTree& albero, const QString& chiave) {
        albero.ensureVisible(chiave);
        const auto chiavi = albero.nodeKeys();
        QTreeWidgetItemIterator uno(&albero);
        uno += static_cast<int>(std::find(chiavi.begin(), chiavi.end(), chiave) - chiavi.begin());
        return albero.visualItemRect(*uno);
    }
    static QPoint figura(int posizione) { return posto(immagini(), immagini().nodeKey(posizione)).center(); }
    static void clicca(int posizione) {
        QTest::mouseClick(immagini().viewport(), Qt::LeftButton, {}, figura(posizione));
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
    static QString gruppo(const QString& chiave) {
        QTest::mouseClick(cartelle().viewport(), Qt::LeftButton, {}, posto(cartelle(), chiave).center());
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

public:
    bool eventFilter(QObject* visto, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && visto->objectName() == u"Status"_s)
            avanzamento_ += qobject_cast<QLabel*>(visto)->text();
        return false;
    }

private Q_SLOTS:
    void mappa() {
        apri();
        auto& mappa = palette().find<BodyMap>(u"BodyMap1"_s);
        QString codici;
        connect(&mappa, &BodyMap::Change, this, [&](const QString& codice) { codici += codice + u' '; });
        // DEL, coded otherwise; PET over DEL, DOR over TRA, ICI over POL, told twice; two beside all.
        for (const QPoint& twips :
             {QPoint(330, 750), QPoint(2520, 637), QPoint(1335, 690), QPoint(1200, 2137), QPoint(1200, 2137),
              QPoint(30, 30), QPoint(2830, 3005)}) {
            const QPoint punto(toolkit::toPixels(twips.x()), toolkit::toPixels(twips.y()));
            QWidget* sotto = mappa.childAt(punto) == nullptr ? &mappa : mappa.childAt(punto);
            QTest::mouseClick(sotto, Qt::LeftButton, {}, sotto->mapFrom(&mappa, punto));
        }
        QWidget* area = &palette().widget(u"ERE_0"_s);
        QTest::mousePress(area, Qt::LeftButton);
        QTest::mouseRelease(area, Qt::LeftButton, {}, QPoint(-5, 3)); // let go outside
        QCOMPARE(codici, u"DAL PET DOR ICI ICI "_s);
        QVERIFY(alike(mappa.grab().toImage().pixelColor(60, 10), colourOfMap(u"ICI"_s)));
    }

    void avanzamento() {
        // The first number is not exact in 32 bits; the last figure has the file of the one before.
        // 0.1 is not exact in 32 bits; the last figure has the file of the one before.
        constexpr double numeri[] = {0.1, 12.5, 1234.75, 13, 14, 15};
        for (int i = 0; i < 6; ++i)
            addFigure(program(), 10 + i, numeri[i], u"GLU"_s, u"Q/%1.JPG"_s.arg(std::min(10 + i, 14)));
        qApp->installEventFilter(this);
        apri();
        QCOMPARE(elenco(), u"[2]"_s); // the chest's
        avanzamento_.removeDuplicates();
        // Counted over the whole machine, also where one figure alone matches.
        QCOMPARE(avanzamento_.join(u' '), u"0% 9% 18% 27% 36% 45% 54% 63% 72% 81% 90% 100%"_s);
        QVERIFY(!Tool_BarProg::esiste());
        avanzamento_.clear();
        sql(u"DELETE FROM figure_muscoli WHERE id_fig = 11"_s); // ten show none
        QCOMPARE(muscolo(u"GLU_0"_s), u"[0.1] [1.5] [13] [14] [1234.75]"_s);
        QCOMPARE(immagini().nodeTag(immagini().nodeKey(4)), u"14"_s);
        qApp->removeEventFilter(this);
        QCOMPARE(avanzamento_, QStringList());
    }

    void filtriEUltimaSelezione() {
        sql(u"INSERT INTO muscoli VALUES ('QUB','Cosce','')"_s); // of two neighbours of one name one is shown
        apri();
        QVERIFY(cartelle().contains(u"QUA"_s) != cartelle().contains(u"QUB"_s));
        QCOMPARE(scheda(1), u"[1] [1.5] [2]"_s);
        QVERIFY(palette().isVisible(u"twFolder"_s) && !palette().isVisible(u"BodyMap1"_s));
        QTest::keyClick(&cartelle(), Qt::Key_Down); // Addominali
        QCOMPARE(elenco(), u"[1]"_s);
        QCOMPARE(gruppo(u"VUO"_s), QString());
        QCOMPARE(gruppo(u"root"_s), u"[1] [1.5] [2]"_s);
        scheda(2);
        QCOMPARE(muscolo(u"Add_1"_s), u"[1]"_s);
        // The filter in force is not read anew, from map or tree.
        addFigure(program(), 10, 12.5, u"ADD"_s, u"Q/010.JPG"_s);
        mdiScheda::comune().ImageList2.add(program().folder() + u"\\images\\Q/010.JPG"_s, QIcon());
        QCOMPARE(muscolo(u"Add_1"_s), u"[1]"_s);
        QCOMPARE(scheda(1), u"[1] [1.5] [2] [12.5]"_s); // the code differs from the node's text: filled
        QCOMPARE(gruppo(u"GLU"_s), u"[1.5]"_s);
        sql(u"DELETE FROM figure_muscoli WHERE id_muscolo = 'GLU'"_s);
        QCOMPARE(gruppo(u"GLU"_s), u"[1.5]"_s);
        QCOMPARE(scheda(2), QString()); // empty until a click on the map
        QCOMPARE(muscolo(u"Add_1"_s), u"[1] [12.5]"_s);
        // Back on the tree the group chosen before is listed again, although it was chosen last there.
        QCOMPARE(scheda(1) + cartelle().selectedKey(), u"GLU"_s);
        // A refused close forgets the choice in force.
        QCOMPARE(gruppo(u"QUA"_s), u"[1] [2]"_s);
        sql(u"DELETE FROM figure_muscoli"_s);
        palette().window().close();
        anteprima_().close();
        QVERIFY(palette().window().isVisible() && SchedaPreviewFigura::esiste());
        QCOMPARE(gruppo(u"QUA"_s), QString());
    }

    void zoomImmagine() {
        apri();
        QCOMPARE(muscolo(u"QUA_1"_s), u"[1] [2]"_s);
        QCOMPARE(trascinaDa(figura(2)), u"1"_s); // the key, not the number
        boxes().expect(Icon::None, runtime::standardDescription(runtime::ObjectNotSet));
        QCOMPARE(trascinaDa(QPoint(20, immagini().viewport()->height() - 3)), QString()); // beside the nodes
        clicca(2);
        QVERIFY(!anteprima_().isVisible()); // a click does not open it
        palette().press(u"cmdZoom"_s);
        QVERIFY(anteprima_().isVisible() && mostra(1));
        clicca(1);
        QVERIFY(mostra(3));
        WindowPage(anteprima_()).press(u"cmdClose"_s);
        clicca(2);
        QVERIFY(!anteprima_().isVisible() && mostra(3)); // hidden, it keeps its picture
        scheda(1);
        gruppo(u"VUO"_s);
        palette().press(u"cmdZoom"_s); // nothing selected
        QVERIFY(!anteprima_().isVisible());
    }

    void anteprima() {
        apri();
        SchedaPreviewFigura& form = anteprima_();
        form.show();
        const WindowPage page(form);
        const auto misure = [&] { // the window's, and the picture's, which stays as it is
            const double quadro = page.find<toolkit::PictureBox>(u"Image1"_s).width();
            return u"%1 %2 %3"_s.arg(form.outerWidth()).arg(form.outerHeight()).arg(quadro);
        };
        page.press(u"ZoomPiu"_s);
        form.LoadImage(program().folder() + u"\\images\\Q\\001.JPG"_s);
        QCOMPARE(misure(), u"7020 7380 5775"_s);
        page.press(u"ZoomMeno"_s);
        QCOMPARE(misure(), u"5850 6150 5775"_s);
        for (int i = 0; i < 400; ++i) // up to where it ends, without an error
            page.find<QAbstractButton>(i < 200 ? u"ZoomPiu"_s : u"ZoomMeno"_s).click();
    }
};

QUIVERDECK_TEST(TestPalette)
#include "test_palette.moc"
