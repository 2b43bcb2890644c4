#include "printing/PrinterDaNonFare.h"

#include "platform/toolkit/PrinterDialog.h"
#include "platform/toolkit/Twips.h"
#include "printing/LavoroDiStampa.h"
#include "printing/SuperficieAvvertenze.h"

#include <QGuiApplication>
#include <QScreen>

PrinterDaNonFare::PrinterDaNonFare()
    : Anteprima(QStringLiteral("PrinterDaNonFare"), sheet::avvertenzeSurface(),
                {QStringLiteral("avvertenze"), QStringLiteral("Image1"), QStringLiteral("Label1")}) {
    Toolbar.addButton(QStringLiteral("Stampa"), QStringLiteral("Stampa"),
                      QStringLiteral("Stampa la scheda corrente"));
    Toolbar.addButton(QStringLiteral("PagPrec"), QStringLiteral("Pag.Prec"), {});
    Toolbar.addButton(QStringLiteral("PagSucc"), QStringLiteral("Pag.Succ"), {});
    Toolbar.addButton(QStringLiteral("esci"), QStringLiteral("Esci"), QStringLiteral("Esci dall'anteprima"));
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
    range.proposedFile = QStringLiteral("Istruzioni d’uso.pdf");
    return range;
}

void PrinterDaNonFare::stampaFogli(QPrinter& printer, const toolkit::PrintRange& range) {
    rasterizza();
    LavoroDiStampa job(printer);
    job.foglio(Picture2, range.copies);
    job.EndDoc();
}
