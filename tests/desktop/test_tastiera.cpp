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
#include "platform/host/ProgramDirectory.h"
#include "printing/PrinterCanvas.h"
#include "printing/PrinterDaNonFare.h"
#include "support/KeyboardWalk.h"
#include "support/WindowChecks.h"
#include "templates/SchedeMODELLONuova.h"
#include "templates/SchedeMODELLOSelezione.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

using Window = std::function<QWidget*()>;
Q_DECLARE_METATYPE(Window)

namespace {

template <class F> QWidget* shown() {
    F::comune().show();
    return &F::comune();
}

} // namespace

/// Every window by keyboard and by ear, and with every text whole.
class TestTastiera : public EditorTest {
    Q_OBJECT

    /// The editor on a card with these figures.
    QWidget* conFigure(std::initializer_list<int> figure) const {
        apriConFigure(figure);
        return &mdiScheda::comune();
    }

private Q_SLOTS:
    void init() {
        EditorTest::init();
        for (int i = 0; i < 5; ++i)
            givePicture(program(), u"avvertenze/posa%1.JPG"_s.arg(i), Qt::white);
        QDir().mkpath(program().folder() + u"/HELP"_s);
        QFile help(program().folder() + u"/HELP/HELP.hlp"_s);
        QVERIFY(help.open(QIODevice::WriteOnly));
        help.write("<html><body>\n<!--capitolo Primo-->\n<!--pagina benvenuto|Benvenuti-->\n"
                   "<h1>Benvenuti</h1>\n<!--fine-->\n</body></html>\n");
        guida::file = host::joined(u"\\HELP\\HELP.hlp"_s);
    }

    void walk_data() {
        QTest::addColumn<int>("stops"); // at least; the toolbars take no focus
        QTest::addColumn<Window>("open");
        const auto row = [](const char* name, int stops, const Window& open) {
            QTest::newRow(name) << stops << open;
        };
        row("Principale", 0, shown<Principale>);
        row("UtentiSelezione", 2, shown<UtentiSelezione>);
        row("UtentiNuovo", 6, shown<UtentiNuovo>);
        row("SchedeSelezione", 1, [this] {
            nuovaScheda();
            SchedeSelezione::comune().idUtenteLista = 1;
            SchedeSelezione::comune().fillList();
            return shown<SchedeSelezione>();
        });
        row("SchedeMODELLOSelezione", 1, shown<SchedeMODELLOSelezione>);
        row("SchedeMODELLONuova", 3, shown<SchedeMODELLONuova>);
        row("the editor with a card", 15, [this] { return conFigure({1, 2, 3}); });
        row("the editor with free lines", 15, [this] { return conFigure({0, 0}); });
        row("the editor with a template", 10, [this] {
            nuovoModello();
            apri(0, 0, 2);
            return &mdiScheda::comune();
        });
        row("the editor with a figure enlarged", 18, [this] {
            QWidget* window = conFigure({1, 2, 3});
            SchedaPreviewFigura::comune().LoadImage(program().folder() + u"/images/Q/001.JPG"_s);
            SchedaPreviewFigura::comune().show();
            return window;
        });
        row("SchedaCorpo2", 9, [] {
            SchedaCorpo2::comune().schedaAperta = std::make_shared<::scheda>();
            return shown<SchedaCorpo2>();
        });
        row("PrinterCanvas", 1, [this] {
            esercizio(nuovaScheda(), 1, 1);
            variabiliGlobali::idSchedaSelezionata = 1;
            return shown<PrinterCanvas>();
        });
        row("PrinterDaNonFare", 1, shown<PrinterDaNonFare>);
        row("frmPersonalizza", 5, shown<frmPersonalizza>);
        row("frmAbout", 4, shown<frmAbout>);
        row("frmDisplay", 1, shown<frmDisplay>);
        row("ResolutionConfirm", 2, shown<ResolutionConfirm>);
        row("FinestraGuida", 3, [] {
            FinestraGuida::mostra({});
            return static_cast<QWidget*>(&FinestraGuida::comune());
        });
        row("zfrmTestDB", 3, shown<zfrmTestDB>);
        row("zTESTDragAndDrop", 1, shown<zTESTDragAndDrop>);
        row("zTestTreeViewImage", 1, shown<zTestTreeViewImage>);
    }
    void walk() {
        QFETCH(int, stops);
        QFETCH(Window, open);
        const QWidget& window = *open();
        QVERIFY(window.isVisible());
        QCOMPARE(namelessControls(window).join(u"; "_s), QString());
        QCOMPARE(leapsOfTab(window).join(u"; "_s), QString());
        QCOMPARE(cutTexts(window).join(u"; "_s), QString());
        QVERIFY2(tabStops(window) >= stops, qPrintable(QString::number(tabStops(window))));
    }

    void pagesByKeyboard() {
        conFigure({1});
        const auto active = [] {
            for (const toolkit::Form* page : mdiScheda::comune().pages())
                if (page->isAncestorOf(QApplication::focusWidget()))
                    return page->objectName();
            return QString();
        };
        QStringList pages;
        for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ShiftModifier}) {
            for (int i = 0; i < 3; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
                pages += active();
            }
        }
        // The enlarged figure is hidden and left out.
        QCOMPARE(pages, QStringList({u"SchedaSelezioneFIGURE"_s, u"SchedaIntestazione"_s, u"SchedaCorpo"_s,
                                     u"SchedaIntestazione"_s, u"SchedaSelezioneFIGURE"_s, u"SchedaCorpo"_s}));
    }
};

QUIVERDECK_TEST(TestTastiera)
#include "test_tastiera.moc"
