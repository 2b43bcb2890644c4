#pragma once

#include "platform/toolkit/PrinterDialog.h"

namespace toolkit {

/// The toolkit's own printer dialog: A4, the default printer (or a PDF where there is none) at first, then
/// the printer and folder chosen last. Changes no setting of the system.
class QtPrinterDialog : public PrinterDialog {
public:
    bool choose(QPrinter& printer, PrintRange& range) override;

private:
    QString lastPrinter_; ///< empty: the default one
    QString lastFolder_;
    bool lastWasPdf_ = false;
};

} // namespace toolkit
