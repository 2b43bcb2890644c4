#include "printing/PrinterDaNonFare.h"

#include "platform/toolkit/PrinterDialog.h"
#include "platform/toolkit/Twips.h"
#include "printing/LavoroDiStampa.h"
#include "printing/SuperficieAvvertenze.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

PrinterDaNonFare::PrinterDaNonFare()
    : Anteprima(u"PrinterDaNonFare"_s, sheet::avvertenzeSurface(),
                {u"avvertenze"_s, u"Image1"_s, u"Label1"_s}) {
    Toolbar.addButton(u"Stampa"_s, u"Stampa"_s, u"Stampa la scheda corrente"_s);
    Toolbar.addButton(u"PagPrec"_s, u"Pag.Prec"_s, {});
    Toolbar.addButton(u"PagSucc"_s, u"Pag.Succ"_s, {});
    Toolbar.addButton(u"esci"_s, u"Esci"_s, u"Esci dall'anteprima"_s);
}

void PrinterDaNonFare::onLoad() {
    Anteprima::onLoad();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    setTop(toolkit::toTwips(screen.top()));
    setLeft(toolkit::toTwips(screen.left()));
    setOuterSize(superficie.width, toolkit::toTwips(screen.height()));
    onResize();
}

void PrinterDaNonFare::comando(const QString& key) {
    if (key == u"stampa")
        stampaProtetta();
    else if (key == u"esci")
        unload();
}

toolkit::PrintRange PrinterDaNonFare::intervallo() const {
    toolkit::PrintRange range; // one page
    range.proposedFile = u"Istruzioni d’uso.pdf"_s;
    return range;
}

void PrinterDaNonFare::stampaFogli(QPrinter& printer, const toolkit::PrintRange& range) {
    rasterizza();
    LavoroDiStampa job(printer);
    job.foglio(Picture2, range.copies);
    job.EndDoc();
}
