#pragma once

#include "desktop/SliderEffect.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/StatusBar.h"
#include "platform/toolkit/Toolbar.h"
#include "printing/Foglio.h"

#include <QImage>

class QPrinter;
namespace toolkit {
struct PrintRange;
}

/// What both previews have: one white sheet in a viewport, a scroll bar, the hand that drags the page, and
/// the way to the printer. A derived window gives the surface, what stands in the toolbar, and what it
/// prints.
class Anteprima : public toolkit::Form {
    Q_OBJECT
protected:
    /// `surface` becomes the window's; `sensibili` are the elements over which the page can be dragged.
    Anteprima(const QString& name, sheet::Surface surface, const QStringList& sensibili);

    /// Adds `StatusBar1` with its panels; without it the resize rule leaves its height out.
    void aggiungiBarraDiStato(const QStringList& panels);

    /// Buttons take their pictures.
    void onLoad() override;
    void onResize() override;
    void wheelEvent(QWheelEvent* event) override;

    /// Puts the page into the middle of a wide window, or at its left edge.
    void centraCanvas();
    /// Renders the surface into `Picture2`, four device pixels to a pixel of the screen.
    void rasterizza();
    /// Shows the printer dialog and prints with errors caught: any but the cancel shows its description.
    /// Afterwards, error or not, the pointer is the arrow again.
    void stampaProtetta();

    /// The toolbar's key in lower case.
    virtual void comando(const QString& key) = 0;
    /// What the dialog offers.
    virtual toolkit::PrintRange intervallo() const = 0;
    /// Sends the chosen sheets.
    virtual void stampaFogli(QPrinter& printer, const toolkit::PrintRange& range) = 0;

    sheet::Surface superficie;
    toolkit::Toolbar Toolbar;
    toolkit::ImageList ImageList;
    Foglio canvas;
    toolkit::ScrollBar VScroll1;
    QImage Picture2; ///< what is printed
    SliderEffect sliderEffect;
    toolkit::StatusBar* StatusBar1 = nullptr; ///< only where aggiungiBarraDiStato made one

private:
    double altezzaBarre() const;
};
