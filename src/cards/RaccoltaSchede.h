#pragma once

#include "core/ModuloBase.h"
#include "core/db.h"
#include "platform/runtime/Collection.h"
#include "platform/runtime/Conversions.h"

#include <memory>
#include <utility>

/// What the collections of cards and of templates have in common.
template <class Record> class RaccoltaSchede {
public:
    std::shared_ptr<runtime::Collection<Record>> schede = ///< never null
        std::make_shared<runtime::Collection<Record>>();

    /// Deletes every record. An empty collection is filled first, with records that carry their keys alone:
    /// the view shows neither a card whose athlete has gone nor a template without a category. The collection
    /// keeps its items.
    bool EliminaTutto() {
        if (schede->Count() == 0) {
            for (store::Recordset righe = chiavi(); !righe.EOF_(); righe.MoveNext()) {
                auto una = std::make_shared<Record>();
                una->id_scheda = righe(u"id_scheda").toInt32();
                schede->Add(una);
            }
        }
        const qint16 ultima = runtime::toInt16(schede->Count());
        for (int i = 1; i <= ultima; ++i)
            schede->Item(i)->Elimina(0);
        return true;
    }

    /// Adds the records in the store's order, without their lines; a second call doubles them.
    bool caricaSchede() {
        for (store::Recordset righe = chiavi(); !righe.EOF_(); righe.MoveNext()) {
            auto una = std::make_shared<Record>();
            una->carica(righe(u"id_scheda").toInt32());
            schede->Add(una);
        }
        return true;
    }

    bool Add(const std::shared_ptr<Record>& s) {
        schede->Add(s);
        return true;
    }

    /// Takes the record out of the collection and deletes it.
    bool remove(std::shared_ptr<Record> s) {
        // Held here: the caller's may be the collection's own.
        const std::shared_ptr<Record> una = std::move(s);
        for (int i = schede->Count(); i >= 1; --i)
            if (schede->Item(i) == una)
                schede->Remove(i);
        una->Elimina(0);
        return true;
    }

protected:
    RaccoltaSchede() = default;
    ~RaccoltaSchede() = default;

    const db& archivio() const { return archivio_; }

private:
    /// The keys of the records, in a field "id_scheda".
    virtual store::Recordset chiavi() const = 0;

    db archivio_{ModuloBase::nomeArchivio()};
};
