#include "desktop/InformazioniSistema.h"

#include "platform/host/Process.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

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
    if (!GetKeyValue(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, u"PATH"_s, percorso)) {
        const bool trovato =
            GetKeyValue(u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, u"MSINFO"_s, percorso);
        percorso += u"\\MSINFO32.EXE"_s;
        if (!trovato || !QFileInfo::exists(host::resolve(percorso))) {
            host::message(u"Le informazioni sul sistema non sono attualmente disponibili."_s);
            return;
        }
    }
    host::startProcess(host::resolve(percorso));
}
