#include "core/Finestre.h"

#include "cards/mdiScheda.h"
#include "desktop/frmAbout.h"
#include "desktop/frmPersonalizza.h"
#include "printing/PrinterDaNonFare.h"
#include "templates/SchedeMODELLOSelezione.h"

#include <QStringList>

namespace finestre {

bool pronto(const QString& comando) {
    static const QStringList mancanti{
        QStringLiteral("mnuHelpHelp"),
        QStringLiteral("mnuHelpManuale"),
    };
    return !mancanti.contains(comando);
}

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

} // namespace finestre
