#include "cards/raccoglitore.h"

#include "core/ModuloBase.h"
#include "platform/runtime/Conversions.h"

#include <utility>

using namespace Qt::StringLiterals;

raccoglitore::raccoglitore()
    : schede(std::make_shared<runtime::Collection<scheda>>()), archivio_(ModuloBase::nomeArchivio()) {}

store::Recordset raccoglitore::chiavi() const {
    return archivio_.getRs(u"SELECT id_scheda FROM schede WHERE id_utente = "_s + QString::number(id_utente));
}

bool raccoglitore::EliminaTutto() {
    if (schede->Count() == 0) {
        // The athlete's row is gone, so the view no longer shows the cards: their keys must do.
        for (store::Recordset righe = chiavi(); !righe.EOF_(); righe.MoveNext()) {
            auto carta = std::make_shared<scheda>();
            carta->id_scheda = righe(u"id_scheda").toInt32();
            schede->Add(carta);
        }
    }
    const qint16 ultima = runtime::toInt16(schede->Count());
    for (int i = 1; i <= ultima; ++i)
        schede->Item(i)->Elimina(0);
    return true;
}

bool raccoglitore::caricaSchede() {
    for (store::Recordset righe = chiavi(); !righe.EOF_(); righe.MoveNext()) {
        auto carta = std::make_shared<scheda>();
        carta->carica(righe(u"id_scheda").toInt32());
        schede->Add(carta);
    }
    return true;
}

bool raccoglitore::Add(const std::shared_ptr<scheda>& s) {
    schede->Add(s);
    return true;
}

bool raccoglitore::remove(std::shared_ptr<scheda> s) {
    // Held here: the caller's may be the collection's own.
    const std::shared_ptr<scheda> carta = std::move(s);
    for (int i = schede->Count(); i >= 1; --i) {
        if (schede->Item(i) == carta)
            schede->Remove(i);
    }
    carta->Elimina(0);
    return true;
}
