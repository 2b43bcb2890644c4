#include "printing/LavoroDiStampa.h"

#include "platform/runtime/Error.h"

#include <QImage>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

constexpr int printerError = 482;
constexpr double pixelsPerInch = 96; // logical pixels of the surface

[[noreturn]] void rifiuta() {
    runtime::raise(printerError, u"La stampa non è riuscita: la stampante o il file scelto non "
                                 "accettano i dati."_s);
}

} // namespace

void LavoroDiStampa::foglio(const QImage& foglio, int copie) {
    const QSizeF logical = foglio.deviceIndependentSize();
    for (int copia = 0; copia < copie; ++copia) {
        if (!painter_.isActive()) {
            if (!painter_.begin(&printer_))
                rifiuta();
        } else if (!printer_.newPage()) {
            rifiuta();
        }
        const double dots = printer_.resolution() / pixelsPerInch;
        painter_.drawImage(QRectF(QPointF(0, 0), logical * dots), foglio,
                           QRectF(QPointF(0, 0), foglio.size()));
    }
}

void LavoroDiStampa::EndDoc() {
    if (painter_.isActive() && !painter_.end())
        rifiuta();
}
