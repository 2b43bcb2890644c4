#pragma once

#include "platform/toolkit/Shared.h"
#include "printing/Anteprima.h"
#include "printing/PreviewWindow.h"
#include "printing/pages.h"

/// The preview of a card: its sheets one at a time, and the way to paper. It opens for the card whose key
/// stands in idSchedaSelezionata, read anew from the store at each load.
class PrinterCanvas : public Anteprima, public toolkit::Shared<PrinterCanvas> {
    Q_OBJECT
public:
    PrinterCanvas();

protected:
    void onLoad() override;
    void comando(const QString& key) override;
    toolkit::PrintRange intervallo() const override;
    void stampaFogli(QPrinter& printer, const toolkit::PrintRange& range) override;

private:
    /// The window as the pages see it.
    class Finestra : public sheet::PreviewWindow {
    public:
        explicit Finestra(PrinterCanvas& window) : window_(window) {}
        sheet::Surface& canvas() override { return window_.superficie; }
        double width() const override { return window_.outerWidth(); }
        void setFirstPanel(const QString& text) override;

    private:
        PrinterCanvas& window_;
    };

    void stampa();
    void adattaFinestra();
    void paginaSuccessiva();
    void paginaPrecedente();
    void vaiAPagina(qint16 numero);
    /// Composes a sheet and keeps the page in its place.
    void componi(qint16 numero);

    Finestra finestra_;
    ::pages pages_;
};
