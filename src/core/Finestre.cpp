#include "core/Finestre.h"

#include "cards/mdiScheda.h"
#include "core/Principale.h"
#include "desktop/FinestraGuida.h"
#include "desktop/frmAbout.h"
#include "desktop/frmPersonalizza.h"
#include "desktop/frmSplash.h"
#include "figures/SchedaPreviewFigura.h"
#include "figures/SchedaSelezioneFIGURE.h"
#include "printing/PrinterCanvas.h"
#include "printing/PrinterDaNonFare.h"
#include "templates/SchedaIntestazioneMODELLO.h"
#include "templates/SchedeMODELLONuova.h"
#include "templates/SchedeMODELLOSelezione.h"

namespace finestre {

void mostraPrincipale() {
    Principale::comune().mostra();
}

void nascondiPrincipale() {
    Principale::comune().nascondi();
}

void chiudiGuida() {
    if (FinestraGuida::esiste())
        FinestraGuida::comune().unload();
}

void mostraModelli() {
    SchedeMODELLOSelezione::comune().showModal();
}

void mostraPalestra() {
    frmPersonalizza::comune().showModal();
}

void mostraAvvertenze() {
    PrinterDaNonFare::comune().showModal();
}

void mostraInformazioni() {
    frmAbout::comune().showModal();
}

void caricaScheda() {
    mdiScheda::comune().load();
}

void mostraScheda() {
    mdiScheda::comune().mostra();
}

void scaricaScheda() {
    if (mdiScheda::esiste())
        mdiScheda::comune().unload();
}

void avanzamentoMassimo(qint16 massimo) {
    frmSplash::comune().barSetMax(massimo);
    frmSplash::comune().barReset();
}

void avanzamentoPasso() {
    frmSplash::comune().barStep();
}

QPointF disponiFigure(double larghezza) {
    constexpr double margine = 250; // twips, at the right of the selection
    auto& figure = SchedaSelezioneFIGURE::comune();
    figure.load();
    figure.setLeft(larghezza - figure.outerWidth() - margine);
    figure.setTop(0);
    figure.show();
    return {figure.left(), figure.top()};
}

void disponiAnteprimaFigura(QPointF figure) {
    auto& anteprima = SchedaPreviewFigura::comune();
    anteprima.load();
    anteprima.setLeft(figure.x() - 1500);
    anteprima.setTop(figure.y() + 200);
    anteprima.hide();
}

void disponiIntestazioneModello(const std::function<void(toolkit::Form&)>& disponi) {
    disponi(SchedaIntestazioneMODELLO::comune());
}

void scaricaIntestazioneModello() {
    if (SchedaIntestazioneMODELLO::esiste())
        SchedaIntestazioneMODELLO::comune().unload();
}

void mostraAnteprima() {
    PrinterCanvas::comune().showModal();
}

void chiediNuovoModello() {
    SchedeMODELLONuova::comune().showModal();
}

} // namespace finestre
