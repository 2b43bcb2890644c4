#include "platform/toolkit/QtPrinterDialog.h"

#include "platform/host/Application.h"
#include "platform/toolkit/DialogOwner.h"
#include "platform/toolkit/Hourglass.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace toolkit {

bool QtPrinterDialog::choose(QPrinter& printer, PrintRange& range) {
    if (!lastPrinter_.isEmpty())
        printer.setPrinterName(lastPrinter_);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFromTo(range.from, range.to);
    const QString folder = lastFolder_.isEmpty() ? QDir::homePath() : lastFolder_;
    const QString name = range.proposedFile.isEmpty() ? u"%1.pdf"_s.arg(host::title()) : range.proposedFile;
    const QString proposed = QDir(folder).filePath(name);
    if (lastWasPdf_)
        printer.setOutputFileName(proposed);
    QPrintDialog dialog(&printer, dialogOwner());
    dialog.setObjectName(u"printerDialog"_s);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setMinMax(range.minimum, range.maximum);
    dialog.setFromTo(range.from, range.to);
    if (auto* file = dialog.findChild<QLineEdit*>(u"filename"_s))
        file->setText(proposed);
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
        if (button->text().endsWith(QLatin1String(">>")))
            button->click(); // sheets and copies show at once
    // What the sheets' own order rules out: a free list of pages, odd and even ones, the order of copies. The
    // dialog shows them anew as it opens.
    QTimer::singleShot(0, &dialog, [&dialog] {
        for (const char* unused :
             {"pagesRadioButton", "pagesLineEdit", "pageSetLabel", "pageSetCombo", "collate", "reverse"}) {
            if (auto* widget = dialog.findChild<QWidget*>(QLatin1String(unused))) {
                widget->hide();
            }
        }
    });
    const Hourglass::Pause pause;
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (dialog.printRange() == QAbstractPrintDialog::PageRange) {
        range.from = std::clamp(dialog.fromPage(), range.minimum, range.maximum);
        range.to = std::clamp(dialog.toPage(), range.from, range.maximum);
    } else {
        range.from = range.minimum;
        range.to = range.maximum;
    }
    range.copies = std::max(1, printer.copyCount());
    printer.setCopyCount(1);
    printer.setPrintRange(QPrinter::AllPages);
    lastWasPdf_ = printer.outputFormat() == QPrinter::PdfFormat;
    if (lastWasPdf_)
        lastFolder_ = QFileInfo(printer.outputFileName()).absolutePath();
    else
        lastPrinter_ = printer.printerName();
    return true;
}

} // namespace toolkit
