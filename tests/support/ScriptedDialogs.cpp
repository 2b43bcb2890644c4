#include "support/ScriptedDialogs.h"

#include <QPageSize>

bool ScriptedPrinterDialog::choose(QPrinter& printer, toolkit::PrintRange& range) {
    ++calls;
    asked = range;
    if (pdf.isEmpty())
        return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pdf);
    printer.setPageSize(QPageSize(QPageSize::A4));
    range.from = from > 0 ? from : range.from;
    range.to = to > 0 ? to : range.to;
    range.copies = copies;
    return true;
}

QString ScriptedFileDialogs::openFile(const QString& filter, const QString& folder) {
    filters.append(filter);
    folders.append(folder);
    return answer;
}
