#pragma once

#include <QString>

class QPrinter;

namespace toolkit {

/// Which sheets to print, and how often each.
struct PrintRange {
    int minimum = 1; ///< first sheet there is
    int maximum = 1; ///< last sheet there is
    int from = 1;
    int to = 1;
    int copies = 1;
    QString proposedFile; ///< bare name proposed for a PDF, e.g. "Rossi Anna 01-01-2026 22-01-2026.pdf"
};

/// Lets the user choose printer, sheets and copies. No printer is looked for before `choose`; make the
/// QPrinter right before the call.
class PrinterDialog {
public:
    virtual ~PrinterDialog() = default;
    /// Writes the choice into `printer` and `range`; false if the dialog was dismissed. `printer` itself is
    /// left to make one copy of everything: the caller repeats the sheets.
    virtual bool choose(QPrinter& printer, PrintRange& range) = 0;
};

/// The installed dialog; error 5 if there is none.
PrinterDialog& printerDialog();
/// Installs a dialog, which stays the caller's; nullptr takes it away.
void setPrinterDialog(PrinterDialog* dialog);

} // namespace toolkit
