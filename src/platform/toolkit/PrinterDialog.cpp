#include "platform/toolkit/PrinterDialog.h"

#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

PrinterDialog*& installed() {
    static PrinterDialog* dialog = nullptr;
    return dialog;
}

} // namespace

PrinterDialog& printerDialog() {
    if (installed() == nullptr)
        runtime::raise(runtime::InvalidCall, u"Servizio del desktop non disponibile"_s);
    return *installed();
}

void setPrinterDialog(PrinterDialog* dialog) {
    installed() = dialog;
}

} // namespace toolkit
