#pragma once

#include "platform/host/Services.h"
#include "platform/toolkit/PrinterDialog.h"

#include <QPageSize>
#include <QPrinter>

/// A printer dialog for tests: prints to a PDF of the test's own, or is dismissed. Installs itself.
class ScriptedPrinterDialog : public toolkit::PrinterDialog {
public:
    ScriptedPrinterDialog() { toolkit::setPrinterDialog(this); }
    ~ScriptedPrinterDialog() override { toolkit::setPrinterDialog(nullptr); }
    ScriptedPrinterDialog(const ScriptedPrinterDialog&) = delete;
    ScriptedPrinterDialog& operator=(const ScriptedPrinterDialog&) = delete;

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

/// A file dialog for tests: gives `answer` (empty: dismissed) and keeps what it was asked for. Installs
/// itself.
class ScriptedFileDialogs : public host::FileDialogs {
public:
    ScriptedFileDialogs() { host::setFileDialogs(this); }
    ~ScriptedFileDialogs() override { host::setFileDialogs(nullptr); }
    ScriptedFileDialogs(const ScriptedFileDialogs&) = delete;
    ScriptedFileDialogs& operator=(const ScriptedFileDialogs&) = delete;

    QString openFile(const QString& filter, const QString& /*folder*/) override {
        filters.append(filter);
        return answer;
    }

    QString answer;
    QStringList filters;
};
