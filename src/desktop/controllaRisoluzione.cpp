#include "desktop/controllaRisoluzione.h"

#include "core/Logger.h"
#include "core/db.h"
#include "core/variabiliGlobali.h"
#include "desktop/MonitorResolution.h"
#include "desktop/ResolutionConfirm.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int offerte = 8;
constexpr qint32 larghezzaMinima = 1024;
constexpr qint32 altezzaConsigliata = 768;

/// Counts this start; false if it is no longer one of the first eight.
bool contaAvvio() {
    const QString parametro = u"CAMBIO_RISOLUZIONE"_s;
    db& archivio = db::comune();
    QString valore = u"1"_s;
    if (archivio.DCount(u"parametro"_s, u"Parametri"_s, u"parametro = '"_s + parametro + QLatin1Char('\'')) >
        0) {
        const double n = runtime::leadingNumber(archivio.Load_Param(parametro)) + 1; // of any size
        if (n > offerte)
            return false;
        valore = runtime::numberText(n);
    }
    archivio.Save_Param(parametro, valore);
    return true;
}

QString domanda(const QString& dimensioni) {
    return u"Il programma è stato ottimizzato per risoluzioni video 1024x768 o superiori. "
           "(Risoluzione attuale: "_s +
           dimensioni +
           u")\nSe si vuole gestire al meglio il programma si consiglia di cambiare la risoluzione. \n"
           "Il programma può aggiustarla automaticamente: cambiarla adesso? \n"
           "(Procedere solo se si è sicuri che il proprio computer supporti tale risoluzione!) "_s;
}

} // namespace

void controllaRisoluzione() {
    if (!contaAvvio())
        return;
    const MonitorResolution monitor;
    ModoVideo precedente;
    monitor.leggiRisoluzione(precedente);
    const QString dimensioni = u"%1x%2"_s.arg(precedente.larghezza).arg(precedente.altezza);
    Logger::comune().log(u"Risoluzione "_s + dimensioni);
    if (precedente.larghezza >= larghezzaMinima)
        return;
    if (host::ask(domanda(dimensioni), host::Icon::Critical, host::Buttons::YesNo) != host::Answer::Yes)
        return;
    host::message(u"Il programma proverà ora a cambiare risoluzione quindi vi chiederà conferma. "
                  "Se il vostro Computer non supportasse tale risoluzione potrebbe non apparire nulla. "
                  "In tal caso attendere 15 secondi e verrà reimpostata la risoluzione precedente"_s,
                  host::Icon::Information);
    // A refused mode is not told apart: the confirmation then comes up on the old one.
    monitor.impostaRisoluzione({larghezzaMinima, altezzaConsigliata, precedente.bit});
    ResolutionConfirm::comune().showModal();
    if (variabiliGlobali::rispostaRisoluzione == 2) {
        monitor.impostaRisoluzione(precedente);
        host::message(u"Reimpostata risoluzione precedente"_s, host::Icon::Information);
    }
}
