#include "desktop/InformazioniSistema.h"

#include "platform/host/Process.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"

#include <QFileInfo>

namespace {

InformazioniSistema::Registro& registroInUso() {
    static InformazioniSistema::Registro registro;
    return registro;
}

/// `KeyVal` is empty if the result is false.
bool GetKeyValue(const QString& KeyName, const QString& SubKeyRef, QString& KeyVal) {
    KeyVal.clear();
    return registroInUso() && registroInUso()(KeyName, SubKeyRef, KeyVal);
}

} // namespace

void InformazioniSistema::setRegistro(Registro registro) {
    registroInUso() = std::move(registro);
}

void InformazioniSistema::StartSysInfo() {
    QString percorso;
    if (!GetKeyValue(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"), QStringLiteral("PATH"),
                     percorso)) {
        const bool trovato = GetKeyValue(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                                         QStringLiteral("MSINFO"), percorso);
        percorso += QStringLiteral("\\MSINFO32.EXE");
        if (!trovato || !QFileInfo::exists(host::resolve(percorso))) {
            host::message(QStringLiteral("Le informazioni sul sistema non sono attualmente disponibili."));
            return;
        }
    }
    host::startProcess(host::resolve(percorso));
}
