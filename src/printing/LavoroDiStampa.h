#pragma once

#include <QPainter>

class QImage;
class QPrinter;

/// One print job: a bitmap a sheet, each sheet as often as asked before the next one. The job begins with its
/// first sheet and ends with EndDoc, or when this goes; there is no blank page at its end. A printer or file
/// that refuses raises runtime::Error.
class LavoroDiStampa {
public:
    /// `printer` must outlive the job.
    explicit LavoroDiStampa(QPrinter& printer) : printer_(printer) {}

    /// Places `foglio` at 0,0 of the printable area in its true size, which is that of its logical pixels
    /// (15 twips each).
    void foglio(const QImage& foglio, int copie);
    void EndDoc();

private:
    QPrinter& printer_;
    QPainter painter_;
};
