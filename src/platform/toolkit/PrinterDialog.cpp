#include "platform/toolkit/PrinterDialog.h"

#include "platform/runtime/Error.h"

namespace toolkit {

namespace {

PrinterDialog*& installed() {
    static PrinterDialog* dialog = nullptr;
    return dialog;
}

} // namespace

PrinterDialog& printerDialog() {
    if (installed() == nullptr) {
        runtime::raise(runtime::InvalidCall, QStringLiteral("Servizio del desktop non disponibile"));
    }
    return *installed();
}

void setPrinterDialog(PrinterDialog* dialog) {
    installed() = dialog;
}

} // namespace toolkit
