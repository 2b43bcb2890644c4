#include "athletes/UtentiNuovo.h"
#include "athletes/UtentiSelezione.h"
#include "cards/EditorTest.h"
#include "cards/SchedeSelezione.h"
#include "cards/mdiScheda.h"
#include "core/Guida.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "desktop/FinestraGuida.h"
#include "desktop/ResolutionConfirm.h"
#include "desktop/frmAbout.h"
#include "desktop/frmPersonalizza.h"
#include "figures/SchedaPreviewFigura.h"
#include "printing/PrinterCanvas.h"
#include "printing/PrinterDaNonFare.h"
#include "support/Files.h"
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
        guida::file = program().folder() + u"/HELP.hlp"_s;
        writeFile(guida::file, "<!--pagina benvenuto|Benvenuti-->\n");
        esercizio(nuovaScheda(), 1, 1);
        variabiliGlobali::idSchedaSelezionata = 1;
        SchedeSelezione::comune().idUtenteLista = 1;
        SchedeSelezione::comune().fillList();
    }

    void walk_data() {
        QTest::addColumn<int>("stops"); // at least; the toolbars take no focus
        QTest::addColumn<Window>("open");
        const auto editor = [this](std::initializer_list<int> figure) {
            apriConFigure(figure);
            return &mdiScheda::comune();
        };
        QTest::newRow("Principale") << 0 << Window(shown<Principale>);
        QTest::newRow("UtentiSelezione") << 2 << Window(shown<UtentiSelezione>);
        QTest::newRow("UtentiNuovo") << 6 << Window(shown<UtentiNuovo>);
        QTest::newRow("SchedeSelezione") << 1 << Window(shown<SchedeSelezione>);
        QTest::newRow("SchedeMODELLOSelezione") << 1 << Window(shown<SchedeMODELLOSelezione>);
        QTest::newRow("SchedeMODELLONuova") << 3 << Window(shown<SchedeMODELLONuova>);
        QTest::newRow("the editor with a card") << 15 << Window([editor] { return editor({1, 2, 3}); });
        QTest::newRow("the editor with free lines") << 15 << Window([editor] { return editor({0, 0}); });
        QTest::newRow("the editor with a template") << 10 << Window([this] {
            nuovoModello();
            apri(0, 0, 2);
            return &mdiScheda::comune();
        });
        QTest::newRow("the editor with a figure enlarged") << 18 << Window([editor] {
            SchedaPreviewFigura::comune().show();
            return editor({1, 2, 3});
        });
        QTest::newRow("PrinterCanvas") << 1 << Window(shown<PrinterCanvas>);
        QTest::newRow("PrinterDaNonFare") << 1 << Window(shown<PrinterDaNonFare>);
        QTest::newRow("frmPersonalizza") << 5 << Window(shown<frmPersonalizza>);
        QTest::newRow("frmAbout") << 4 << Window(shown<frmAbout>);
        QTest::newRow("ResolutionConfirm") << 2 << Window(shown<ResolutionConfirm>);
        QTest::newRow("FinestraGuida") << 3 << Window(shown<FinestraGuida>);
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
