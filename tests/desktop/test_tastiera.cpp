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

#include <QToolButton>

using namespace Qt::StringLiterals;

/// Every window by keyboard and by ear, with every text whole and a page of the guide.
class TestTastiera : public EditorTest {
    Q_OBJECT

    /// Shows a window of at least `stops` places for Tab; the toolbars take no focus.
    template <class F> static void walk(int stops) {
        F& window = F::comune();
        window.show();
        QCOMPARE(namelessControls(window) + leapsOfTab(window) + cutTexts(window), QStringList());
        QVERIFY2(tabStops(window) >= stops, qPrintable(window.objectName()));
        for (const auto* button : window.template findChildren<QAbstractButton*>())
            if (button->isVisible() && (button->text().isEmpty() || qobject_cast<const QToolButton*>(button)))
                QVERIFY2(!button->icon().isNull(), qPrintable(button->objectName()));
        const QString help = qEnvironmentVariable("QUIVERDECK_SOURCE") + u"/help/pagine/%1.md"_s;
        auto pages = window.template findChildren<toolkit::Form*>() << &window;
        for (const toolkit::Form* page : pages)
            if (const QString name = page->objectName(); name != u"FinestraGuida")
                QVERIFY2(haPagina(name) && QFile::exists(help.arg(paginaDellaFinestra(name))),
                         qPrintable(name));
    }

private Q_SLOTS:
    void windows() {
        for (int i = 0; i < 5; ++i)
            givePicture(program(), u"avvertenze/posa%1.JPG"_s.arg(i), Qt::white);
        guida::file = program().folder() + u"/HELP.hlp"_s;
        writeFile(guida::file, "<!--pagina benvenuto|Benvenuti-->\n");
        nuovaScheda({1});
        variabiliGlobali::idSchedaSelezionata = 1;
        SchedeSelezione::comune().idUtenteLista = 1;
        SchedeSelezione::comune().fillList();
        walk<Principale>(0);
        walk<UtentiSelezione>(2);
        walk<UtentiNuovo>(6);
        walk<SchedeSelezione>(1);
        walk<SchedeMODELLOSelezione>(1);
        walk<SchedeMODELLONuova>(3);
        walk<PrinterCanvas>(1);
        walk<PrinterDaNonFare>(1);
        walk<frmPersonalizza>(5);
        walk<frmAbout>(4);
        walk<ResolutionConfirm>(2);
        walk<FinestraGuida>(3);
    }

    void editorWithFreeLines() {
        apriConFigure({0, 0});
        walk<mdiScheda>(15);
    }

    void editorWithATemplate() {
        nuovoModello();
        apri(0, 0, 2);
        walk<mdiScheda>(10);
    }

    void editorWithACard() {
        apriConFigure({1, 2, 3});
        QString pages;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6,
                            i < 3 ? Qt::NoModifier : Qt::ShiftModifier);
            for (const toolkit::Form* page : mdiScheda::comune().pages())
                if (page->isAncestorOf(QApplication::focusWidget()))
                    pages += page->objectName() + u' ';
        }
        // The enlarged figure is hidden and left out.
        QCOMPARE(pages, u"SchedaSelezioneFIGURE SchedaIntestazione SchedaCorpo "
                        "SchedaIntestazione SchedaSelezioneFIGURE SchedaCorpo "_s);
        walk<mdiScheda>(15);
        SchedaPreviewFigura::comune().show();
        walk<mdiScheda>(18);
    }
};

QUIVERDECK_TEST(TestTastiera)
#include "test_tastiera.moc"
