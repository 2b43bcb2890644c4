#include "printing/PrinterCanvas.h"

#include "core/variabiliGlobali.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/toolkit/Hourglass.h"
#include "platform/toolkit/PrinterDialog.h"
#include "platform/toolkit/Twips.h"
#include "printing/LavoroDiStampa.h"
#include "printing/SuperficieScheda.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

/// Elements over which the page can be dragged, beside the bare paper.
const QStringList sensibili{u"ampiezza"_s, u"durata"_s, u"figura"_s,  u"frequenza"_s,
                            u"modalita"_s, u"note"_s,   u"recupero"_s};

/// A bare file name for a PDF: what file systems refuse in it is left out.
QString nomeFile(QString text) {
    text.replace(u'/', u'.');
    static const QString refused = u"\\:*?\"<>|"_s;
    text.removeIf([](QChar c) { return refused.contains(c) || c < u' '; });
    return text.simplified() + u".pdf"_s;
}

} // namespace

void PrinterCanvas::Finestra::setFirstPanel(const QString& text) {
    window_.StatusBar1->setPanel(u"info"_s, text);
}

PrinterCanvas::PrinterCanvas()
    : Anteprima(u"PrinterCanvas"_s, sheet::cardSurface(), sensibili), finestra_(*this), pages_(finestra_) {
    Toolbar.addButton(u"Stampa"_s, u"Stampa"_s, u"Stampa l'intera scheda"_s);
    Toolbar.addButton(u"PagPrec"_s, u"Pag.Prec"_s, u"Vai a Pagina precedente"_s);
    Toolbar.addButton(u"PagSucc"_s, u"Pag.Succ"_s, u"Vai a Pagina successiva"_s);
    Toolbar.addButton(u"esci"_s, u"Esci"_s, u"Esci dall'anteprima di stampa"_s);
    aggiungiBarraDiStato({u"info"_s, u"ProgressBar"_s});
}

void PrinterCanvas::onLoad() {
    Anteprima::onLoad();
    pages_.createPages(variabiliGlobali::idSchedaSelezionata);
    if (pages_.pages_.Count() > 0) {
        pages_.OpenCanvas();
        componi(1);
    } else {
        canvas.hide();
        host::message(u"Nessun esercizio caricato in questa scheda!"_s, host::Icon::Critical);
    }
    adattaFinestra();
}

void PrinterCanvas::adattaFinestra() {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    setTop(toolkit::toTwips(screen.top()));
    setLeft(toolkit::toTwips(screen.left()));
    setOuterSize(toolkit::toTwips(screen.width()), toolkit::toTwips(screen.height()) - 100);
    onResize();
}

void PrinterCanvas::comando(const QString& key) {
    if (key == u"stampa")
        stampa();
    else if (key == u"pagprec")
        paginaPrecedente();
    else if (key == u"pagsucc")
        paginaSuccessiva();
    else if (key == u"esci")
        unload();
}

void PrinterCanvas::paginaSuccessiva() {
    if (pages_.currentPage < pages_.pages_.Count())
        vaiAPagina(runtime::add16(pages_.currentPage, 1));
}

void PrinterCanvas::paginaPrecedente() {
    if (pages_.currentPage >= 2)
        vaiAPagina(runtime::add16(pages_.currentPage, -1));
}

void PrinterCanvas::vaiAPagina(qint16 numero) {
    const toolkit::Hourglass hourglass;
    canvas.hide();
    const bool maximised = isMaximized();
    if (maximised)
        setMaximised(false);
    componi(numero);
    if (maximised) {
        setMaximised(true);
        adattaFinestra();
    }
    VScroll1.setValue(0);
    canvas.show();
}

void PrinterCanvas::componi(qint16 numero) {
    pages_.PreviewPage(numero);
    centraCanvas();
    canvas.update();
}

toolkit::PrintRange PrinterCanvas::intervallo() const {
    toolkit::PrintRange range;
    range.maximum = range.to = pages_.pages_.Count();
    const ::scheda& card = *pages_.pages_.Item(1)->scheda;
    range.proposedFile =
        nomeFile(u"%1 %2 %3-%4"_s.arg(card.cognomeUtente, card.nomeUtente, card.PeriodoDal, card.PeriodoAl));
    return range;
}

void PrinterCanvas::stampa() {
    if (pages_.pages_.Count() == 0)
        return;
    stampaProtetta();
    adattaFinestra();
}

void PrinterCanvas::stampaFogli(QPrinter& printer, const toolkit::PrintRange& range) {
    LavoroDiStampa job(printer);
    for (int page = range.from; page <= range.to; ++page) {
        setMaximised(false);
        componi(runtime::toInt16(page));
        rasterizza();
        job.foglio(Picture2, range.copies);
    }
    job.EndDoc();
}
