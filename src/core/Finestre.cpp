#include "core/Finestre.h"

#include "cards/mdiScheda.h"
#include "desktop/frmAbout.h"
#include "templates/SchedeMODELLOSelezione.h"

#include <QStringList>

namespace finestre {

bool pronto(const QString& comando) {
    static const QStringList mancanti{
        QStringLiteral("mnuQDKPersonalizza"),
        QStringLiteral("mnuSchedeCosaNonFare"),
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

void mostraPalestra() {}

void mostraAvvertenze() {}

void mostraInformazioni() {
    frmAbout::comune().showModal();
}

} // namespace finestre
