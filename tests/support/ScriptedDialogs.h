#pragma once

#include "platform/host/Services.h"
#include "platform/toolkit/PrinterDialog.h"
#include "support/Installed.h"

#include <QPageSize>
#include <QPrinter>

/// A printer dialog for tests: prints to a PDF of the test's own, or is dismissed.
class ScriptedPrinterDialog : public Installed<toolkit::PrinterDialog, toolkit::setPrinterDialog> {
public:
    bool choose(QPrinter& printer, toolkit::PrintRange& range) override {
        ++calls;
        asked = range;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        printer.setPageSize(QPageSize(QPageSize::A4));
        range.from = from > 0 ? from : range.from;
        range.to = to > 0 ? to : range.to;
        range.copies = copies;
        return !pdf.isEmpty();
    }

    QString pdf;  ///< where to print; empty: the dialog is dismissed
    int from = 0; ///< 0: what the caller proposes
    int to = 0;
    int copies = 1;
    int calls = 0;             ///< how often it was opened
    toolkit::PrintRange asked; ///< what the caller proposed last
};

/// A file dialog for tests: gives `answer`, empty when it is dismissed.
class ScriptedFileDialogs : public Installed<host::FileDialogs, host::setFileDialogs> {
public:
    QString openFile(const QString& /*filter*/, const QString& /*folder*/) override { return answer; }

    QString answer;
};
