#pragma once

#include "platform/toolkit/Shared.h"
#include "printing/Anteprima.h"

/// The sheet of warnings for the use of the platform: one fixed page, on screen and on paper.
class PrinterDaNonFare : public Anteprima, public toolkit::Shared<PrinterDaNonFare> {
    Q_OBJECT
public:
    /// Raises FileNotFound when one of its five pictures is missing.
    PrinterDaNonFare();

protected:
    void onLoad() override;
    void comando(const QString& key) override;
    toolkit::PrintRange intervallo() const override;
    void stampaFogli(QPrinter& printer, const toolkit::PrintRange& range) override;
};
