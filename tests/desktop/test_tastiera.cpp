#include "athletes/UtentiNuovo.h"
#include "athletes/UtentiSelezione.h"
#include "cards/Esercizio.h"
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
#include "platform/toolkit/Application.h"
#include "printing/PrinterCanvas.h"
#include "printing/PrinterDaNonFare.h"
#include "support/KeyboardWalk.h"
#include "support/ProgrammaConFigure.h"
#include "support/ToolkitTest.h"
#include "templates/SchedeMODELLONuova.h"
#include "templates/SchedeMODELLOSelezione.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

using Window = std::function<QWidget*()>;
Q_DECLARE_METATYPE(Window)

namespace {

template <class F> QWidget* shown() {
    F::comune().show();
    return &F::comune();
}

QWidget* editor(int card, int modello) {
    idSchedaSelezionata = card;
    idModelloSelezionato = modello;
    idUtenteSelezionato = modello == 0 ? 1 : 0;
    mdiScheda::comune().mostra();
    return &mdiScheda::comune();
}

} // namespace

/// Every window by keyboard and by ear.
class TestTastiera : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        program_ = std::make_unique<ProgrammaConFigure>();
        for (int i = 0; i < 5; ++i) {
            program_->immagine(u"avvertenze/posa%1.JPG"_s.arg(i), Qt::white);
        }
        QDir().mkpath(program_->program.folder() + u"/HELP"_s);
        QFile help(program_->program.folder() + u"/HELP/HELP.hlp"_s);
        QVERIFY(help.open(QIODevice::WriteOnly));
        help.write("<html><body>\n<!--capitolo Primo-->\n<!--pagina benvenuto|Benvenuti-->\n"
                   "<h1>Benvenuti</h1>\n<!--fine-->\n</body></html>\n");
        guida::file = host::joined(u"\\HELP\\HELP.hlp"_s);
        program_->program.sql(u"INSERT INTO utenti (id_utente,nome,cognome) VALUES (1,'Ada','Rossi')"_s);
        ::scheda card;
        card.id_utente = 1;
        card.categoria = u"Generale"_s;
        card.PeriodoDal = u"01/03/2026"_s;
        card.PeriodoAl = u"22/03/2026"_s;
        for (int i = 1; i <= 3; ++i) {
            auto line = std::make_shared<Esercizio>();
            line->id_fig = i;
            card.esercizi->Add(line);
        }
        card_ = card.save();
        inChiusura = false;
    }
    void cleanup() {
        inChiusura = true;
        if (mdiScheda::esiste()) {
            mdiScheda::comune().puoiChiudere = true;
        }
        toolkit::Form::destroyAll();
        inChiusura = false;
        QVERIFY(program_->boxes.satisfied());
    }
    void cleanupTestCase() { program_.reset(); }

    void walk_data() {
        QTest::addColumn<Window>("open");
        QTest::addColumn<int>("stops"); // at least; the toolbars take no focus
        const auto row = [](const char* name, const Window& open, int stops) {
            QTest::newRow(name) << open << stops;
        };
        row("Principale", shown<Principale>, 0);
        row("UtentiSelezione", shown<UtentiSelezione>, 2);
        row("UtentiNuovo", shown<UtentiNuovo>, 6);
        row(
            "SchedeSelezione",
            [] {
                SchedeSelezione::comune().idUtenteLista = 1;
                return shown<SchedeSelezione>();
            },
            1);
        row("SchedeMODELLOSelezione", shown<SchedeMODELLOSelezione>, 1);
        row("SchedeMODELLONuova", shown<SchedeMODELLONuova>, 3);
        row(
            "the editor with a card", [this] { return editor(card_, 0); }, 15);
        row(
            "the editor with a template", [] { return editor(0, 1); }, 10);
        row(
            "the editor with a figure enlarged",
            [this] {
                QWidget* window = editor(card_, 0);
                SchedaPreviewFigura::comune().LoadImage(program_->program.folder() + u"/images/Q/001.JPG"_s);
                SchedaPreviewFigura::comune().show();
                return window;
            },
            18);
        row(
            "PrinterCanvas",
            [this] {
                idSchedaSelezionata = card_;
                return shown<PrinterCanvas>();
            },
            1);
        row("PrinterDaNonFare", shown<PrinterDaNonFare>, 1);
        row("frmPersonalizza", shown<frmPersonalizza>, 5);
        row("frmAbout", shown<frmAbout>, 4);
        row("frmDisplay", shown<frmDisplay>, 1);
        row("ResolutionConfirm", shown<ResolutionConfirm>, 2);
        row(
            "FinestraGuida",
            [] {
                FinestraGuida::mostra({});
                return static_cast<QWidget*>(&FinestraGuida::comune());
            },
            3);
        row("zfrmTestDB", shown<zfrmTestDB>, 3);
        row("zTESTDragAndDrop", shown<zTESTDragAndDrop>, 1);
        row("zTestTreeViewImage", shown<zTestTreeViewImage>, 1);
    }
    void walk() {
        QFETCH(Window, open);
        QFETCH(int, stops);
        const QWidget& window = *open();
        QVERIFY(window.isVisible());
        QCOMPARE(namelessControls(window).join(u"; "_s), QString());
        QCOMPARE(leapsOfTab(window).join(u"; "_s), QString());
        QVERIFY2(tabStops(window) >= stops, qPrintable(QString::number(tabStops(window))));
    }

    void pagesByKeyboard() {
        auto* window = static_cast<mdiScheda*>(editor(card_, 0));
        QVERIFY(QTest::qWaitForWindowActive(window));
        const auto active = [window] {
            for (const toolkit::Form* page : window->pages()) {
                if (page->isAncestorOf(QApplication::focusWidget())) {
                    return page->objectName();
                }
            }
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

private:
    std::unique_ptr<ProgrammaConFigure> program_;
    int card_ = 0;
};

QUIVERDECK_WINDOW_TEST_MAIN(TestTastiera)
#include "test_tastiera.moc"
