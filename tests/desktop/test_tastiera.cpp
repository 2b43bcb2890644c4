#include "athletes/UtentiNuovo.h"
#include "athletes/UtentiSelezione.h"
#include "cards/EditorTest.h"
#include "cards/SchedaCorpo2.h"
#include "cards/SchedeSelezione.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Guida.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "desktop/FinestraGuida.h"
#include "desktop/ResolutionConfirm.h"
#include "desktop/frmAbout.h"
#include "desktop/frmDisplay.h"
#include "desktop/frmPersonalizza.h"
#include "desktop/zTESTDragAndDrop.h"
#include "desktop/zTestTreeViewImage.h"
#include "desktop/zfrmTestDB.h"
#include "figures/SchedaPreviewFigura.h"
#include "printing/PrinterCanvas.h"
#include "printing/PrinterDaNonFare.h"
#include "support/WindowChecks.h"
#include "templates/SchedeMODELLONuova.h"
#include "templates/SchedeMODELLOSelezione.h"

using namespace Qt::StringLiterals;

using Window = std::function<QWidget*()>;
Q_DECLARE_METATYPE(Window)

template <class F> static QWidget* shown() {
    F::comune().show();
    return &F::comune();
}

/// Every window by keyboard and by ear, and with every text whole.
class TestTastiera : public EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        EditorTest::init();
        for (int i = 0; i < 5; ++i)
            givePicture(program(), u"avvertenze/posa%1.JPG"_s.arg(i), Qt::white);
        QFile help(program().folder() + u"/HELP.hlp"_s);
        QVERIFY(help.open(QIODevice::WriteOnly) && help.write("<!--pagina benvenuto|Benvenuti-->\n") > 0);
        guida::file = help.fileName();
        esercizio(nuovaScheda(), 1, 1);
        variabiliGlobali::idSchedaSelezionata = 1;
        SchedeSelezione::comune().idUtenteLista = 1;
        SchedeSelezione::comune().fillList();
        SchedaCorpo2::comune().schedaAperta = std::make_shared<::scheda>();
    }

    void walk_data() {
        QTest::addColumn<int>("stops"); // at least; the toolbars take no focus
        QTest::addColumn<Window>("open");
        const auto row = [](const char* name, int stops, const Window& open) {
            QTest::newRow(name) << stops << open;
        };
        const auto editor = [this](std::initializer_list<int> figure) {
            apriConFigure(figure);
            return &mdiScheda::comune();
        };
        row("Principale", 0, shown<Principale>);
        row("UtentiSelezione", 2, shown<UtentiSelezione>);
        row("UtentiNuovo", 6, shown<UtentiNuovo>);
        row("SchedeSelezione", 1, shown<SchedeSelezione>);
        row("SchedeMODELLOSelezione", 1, shown<SchedeMODELLOSelezione>);
        row("SchedeMODELLONuova", 3, shown<SchedeMODELLONuova>);
        row("the editor with a card", 15, [editor] { return editor({1, 2, 3}); });
        row("the editor with free lines", 15, [editor] { return editor({0, 0}); });
        row("the editor with a template", 10, [this] {
            nuovoModello();
            apri(0, 0, 2);
            return &mdiScheda::comune();
        });
        row("the editor with a figure enlarged", 18, [editor] {
            editor({1, 2, 3});
            SchedaPreviewFigura::comune().show();
            return &mdiScheda::comune();
        });
        row("SchedaCorpo2", 9, shown<SchedaCorpo2>);
        row("PrinterCanvas", 1, shown<PrinterCanvas>);
        row("PrinterDaNonFare", 1, shown<PrinterDaNonFare>);
        row("frmPersonalizza", 5, shown<frmPersonalizza>);
        row("frmAbout", 4, shown<frmAbout>);
        row("frmDisplay", 1, shown<frmDisplay>);
        row("ResolutionConfirm", 2, shown<ResolutionConfirm>);
        row("FinestraGuida", 3, shown<FinestraGuida>);
        row("zfrmTestDB", 3, shown<zfrmTestDB>);
        row("zTESTDragAndDrop", 1, shown<zTESTDragAndDrop>);
        row("zTestTreeViewImage", 1, shown<zTestTreeViewImage>);
    }
    void walk() {
        QFETCH(int, stops);
        QFETCH(Window, open);
        const QWidget& window = *open();
        QVERIFY(window.isVisible());
        QCOMPARE(namelessControls(window) + leapsOfTab(window) + cutTexts(window), QStringList());
        QVERIFY2(tabStops(window) >= stops, qPrintable(QString::number(tabStops(window))));
    }

    void pagesByKeyboard() {
        apriConFigure({1});
        QString pages;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6,
                            i < 3 ? Qt::NoModifier : Qt::ShiftModifier);
            for (const toolkit::Form* page : mdiScheda::comune().pages())
                pages +=
                    page->isAncestorOf(QApplication::focusWidget()) ? page->objectName() + u' ' : QString();
        }
        // The enlarged figure is hidden and left out.
        QCOMPARE(pages, u"SchedaSelezioneFIGURE SchedaIntestazione SchedaCorpo "
                        "SchedaIntestazione SchedaSelezioneFIGURE SchedaCorpo "_s);
    }
};

QUIVERDECK_TEST(TestTastiera)
#include "test_tastiera.moc"
