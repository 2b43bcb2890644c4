#include "printing/Anteprima.h"

#include "core/ImmaginiToolbar.h"
#include "platform/host/Services.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Hourglass.h"
#include "platform/toolkit/PrinterDialog.h"
#include "platform/toolkit/Twips.h"
#include "printing/MisureAnteprima.h"
#include "printing/Painting.h"

#include <QCoreApplication>
#include <QPrinter>
#include <QWheelEvent>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double printerRatio = 4; // device pixels to the logical one: 384 dpi
constexpr double barWidth = 255;   // twips

} // namespace

Anteprima::Anteprima(const QString& name, sheet::Surface surface, const QStringList& sensibili)
    : Form(name), superficie(std::move(surface)), Toolbar(u"Toolbar"_s, this), ImageList({24, 24}),
      canvas(u"canvas"_s, client(), superficie, sensibili), VScroll1(u"VScroll1"_s, client()) {
    setCaption(u"Anteprima"_s);
    setResizable(true);
    setInnerSize(12000, 9000);
    addTopBar(&Toolbar);
    client()->setAutoFillBackground(true);
    client()->setBackgroundRole(QPalette::Mid);
    VScroll1.setAccessibleName(u"Scorrimento del foglio"_s);
    VScroll1.setFocusPolicy(Qt::StrongFocus);
    VScroll1.setMin(0);
    VScroll1.setMax(0);
    VScroll1.setLive(true); // the page follows the hand
    connect(&Toolbar, &toolkit::Toolbar::buttonClick, this,
            [this](const QString& key) { comando(key.toLower()); });
    connect(&VScroll1, &toolkit::ScrollBar::changed, this,
            [this] { canvas.move(canvas.x(), toolkit::toPixels(-VScroll1.value())); });
    connect(&canvas, &Foglio::mouseMoved, this,
            [this](qint16 button) { sliderEffect.setDisplacement(button, VScroll1); });
}

void Anteprima::aggiungiBarraDiStato(const QStringList& panels) {
    StatusBar1 = new toolkit::StatusBar(u"StatusBar1"_s, this); // owned by the window
    for (const QString& key : panels)
        StatusBar1->addPanel(key);
    addBottomBar(StatusBar1);
}

void Anteprima::onLoad() {
    vestiToolbar(Toolbar, ImageList, objectName());
}

double Anteprima::altezzaBarre() const {
    const int status = StatusBar1 ? StatusBar1->sizeHint().height() : 0;
    return toolkit::toTwips(Toolbar.sizeHint().height() + status);
}

void Anteprima::onResize() {
    if (isMinimized())
        return;
    const MisureAnteprima misure = misuraAnteprima(outerWidth(), outerHeight(), altezzaBarre(), barWidth,
                                                   superficie.width, superficie.height);
    toolkit::place(VScroll1, misure.barLeft, 0, barWidth, misure.barHeight);
    if (misure.corsa) {
        VScroll1.setMin(0);
        VScroll1.setMax(misure.corsa->Max);
        VScroll1.setSmallChange(misure.corsa->SmallChange);
        VScroll1.setLargeChange(misure.corsa->LargeChange);
    }
    centraCanvas();
}

void Anteprima::centraCanvas() {
    const double left = misuraAnteprima(outerWidth(), outerHeight(), altezzaBarre(), barWidth,
                                        superficie.width, superficie.height)
                            .canvasLeft;
    canvas.move(toolkit::toPixels(left), canvas.y());
}

void Anteprima::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(&VScroll1, event); // the wheel turns the page wherever the mouse stands
}

void Anteprima::rasterizza() {
    Picture2 = sheet::raster(superficie, printerRatio);
}

void Anteprima::stampaProtetta() {
    const toolkit::Hourglass hourglass;
    try {
        QPrinter printer(QPrinter::HighResolution);
        toolkit::PrintRange range = intervallo();
        if (!toolkit::printerDialog().choose(printer, range))
            runtime::raise(runtime::Cancelled);
        stampaFogli(printer, range);
    } catch (const runtime::Error& error) {
        if (error.number() != runtime::Cancelled)
            host::message(error.description());
    }
}
