#include "core/Finestre.h"

#include "cards/mdiScheda.h"
#include "desktop/FinestraGuida.h"
#include "desktop/frmAbout.h"
#include "desktop/frmPersonalizza.h"
#include "printing/PrinterDaNonFare.h"
#include "templates/SchedeMODELLOSelezione.h"

namespace finestre {

void caricaScheda() {
    mdiScheda::comune().load();
}

void mostraScheda() {
    mdiScheda::comune().mostra();
}

void scaricaScheda() {
    if (mdiScheda::esiste()) {
        mdiScheda::comune().unload();
    }
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

void chiudiGuida() {
    if (FinestraGuida::esiste()) {
        FinestraGuida::comune().unload();
    }
}

} // namespace finestre
