#include "templates/RaccoglitoreModelli.h"

#include "core/ModuloBase.h"
#include "platform/runtime/Conversions.h"

#include <utility>

using namespace Qt::StringLiterals;

RaccoglitoreModelli::RaccoglitoreModelli()
    : schede(std::make_shared<runtime::Collection<SchedaModello>>()), archivio_(ModuloBase::nomeArchivio()) {}

store::Recordset RaccoglitoreModelli::chiavi() const {
    return archivio_.getRs(u"SELECT id_Scheda FROM schedemodello"_s);
}

bool RaccoglitoreModelli::EliminaTutto() {
    if (schede->Count() == 0) {
        // By key alone: a template without a category is not in the view, and is to go all the same.
        for (store::Recordset righe = chiavi(); !righe.EOF_(); righe.MoveNext()) {
            auto modello = std::make_shared<SchedaModello>();
            modello->id_scheda = righe(u"id_Scheda").toInt32();
            schede->Add(modello);
        }
    }
    const qint16 ultimo = runtime::toInt16(schede->Count());
    for (int i = 1; i <= ultimo; ++i)
        schede->Item(i)->Elimina(0);
    return true;
}

bool RaccoglitoreModelli::caricaSchede() {
    for (store::Recordset righe = chiavi(); !righe.EOF_(); righe.MoveNext()) {
        auto modello = std::make_shared<SchedaModello>();
        modello->carica(righe(u"id_Scheda").toInt32());
        schede->Add(modello);
    }
    return true;
}

bool RaccoglitoreModelli::Add(const std::shared_ptr<SchedaModello>& s) {
    schede->Add(s);
    return true;
}

bool RaccoglitoreModelli::remove(std::shared_ptr<SchedaModello> s) {
    // Held here: the caller's may be the collection's own.
    const std::shared_ptr<SchedaModello> modello = std::move(s);
    for (int i = schede->Count(); i >= 1; --i) {
        if (schede->Item(i) == modello)
            schede->Remove(i);
    }
    modello->Elimina(0);
    return true;
}
